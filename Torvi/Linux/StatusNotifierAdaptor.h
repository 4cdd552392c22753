// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/Linux/ItemToolTip.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QPoint>

#include <functional>

namespace torvi {

/// The status item on the bus: org.kde.StatusNotifierItem with the label that some panels show
/// beside the icon (XAyatanaLabel). Main thread only.
///
/// There is no menu: panels then pass a left click on, in place of opening one.
class StatusNotifierAdaptor final : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")

    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconThemePath READ iconThemePath CONSTANT)
    Q_PROPERTY(QString IconName READ iconName)
    Q_PROPERTY(QString IconAccessibleDesc READ iconAccessibleDesc)
    Q_PROPERTY(torvi::IconPixmaps IconPixmap READ iconPixmap)
    Q_PROPERTY(QString OverlayIconName READ noName CONSTANT)
    Q_PROPERTY(torvi::IconPixmaps OverlayIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ noName CONSTANT)
    Q_PROPERTY(torvi::IconPixmaps AttentionIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionMovieName READ noName CONSTANT)
    Q_PROPERTY(torvi::ItemToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)
    Q_PROPERTY(QString XAyatanaLabel READ label)
    Q_PROPERTY(QString XAyatanaLabelGuide READ label)
    Q_PROPERTY(uint XAyatanaOrderingIndex READ orderingIndex CONSTANT)

public:
    /// What a click yields: the position that the panel claims.
    using OnActivate = std::function<void(const QPoint &)>;
    using OnToken = std::function<void(const QString &)>;

    /// Attaches to `parent`, which is then registered on the bus that `connection` leads to.
    StatusNotifierAdaptor(QObject *parent, QDBusConnection connection);

    void setIcon(const QString &symbol, const QString &accessibleDescription);
    void setLabel(const QString &label);
    void setToolTip(const QString &title, const QString &markup);
    void onActivate(OnActivate handler);
    /// Tokens let a window come to the front on Wayland; panels send one before a click.
    void onActivationToken(OnToken handler);

    [[nodiscard]] QString category() const;
    [[nodiscard]] QString id() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString status() const;
    [[nodiscard]] int windowId() const;
    [[nodiscard]] QString iconThemePath() const;
    [[nodiscard]] QString iconName() const;
    [[nodiscard]] QString iconAccessibleDesc() const;
    [[nodiscard]] IconPixmaps iconPixmap() const;
    [[nodiscard]] QString noName() const;
    [[nodiscard]] IconPixmaps noPixmap() const;
    [[nodiscard]] ItemToolTip toolTip() const;
    [[nodiscard]] bool itemIsMenu() const;
    [[nodiscard]] QDBusObjectPath menu() const;
    [[nodiscard]] QString label() const;
    [[nodiscard]] uint orderingIndex() const;

public Q_SLOTS:
    void Activate(int x, int y, const QDBusMessage &call);
    void SecondaryActivate(int x, int y);
    void XAyatanaSecondaryActivate(uint timestamp);
    void ContextMenu(int x, int y);
    void Scroll(int delta, const QString &orientation);
    void ProvideXdgActivationToken(const QString &token);

Q_SIGNALS:
    void NewIcon();
    void NewTitle();
    void NewToolTip();
    void NewStatus(const QString &status);
    void XAyatanaNewLabel(const QString &label, const QString &guide);

private:
    void keepSingleClicks(const QDBusMessage &call);

    QDBusConnection m_connection;
    QString m_iconThemePath;
    QString m_symbol;
    QString m_accessibleDescription;
    QString m_label;
    ItemToolTip m_toolTip;
    OnActivate m_onActivate;
    OnToken m_onToken;
};

} // namespace torvi
