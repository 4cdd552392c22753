// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/CommandLine.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

#include <functional>

namespace torvi {

/// org.freedesktop.Application: what other starts of the program, launchers and scripts ask the
/// running one for. The actions are "toggle", "manager" and "quit". Main thread only.
class ApplicationAdaptor final : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    using Handler = std::function<void(CommandLine::Request)>;

    /// Attaches to `parent`, which is then registered on `connection`. `handler` is called from the
    /// event loop.
    ApplicationAdaptor(QObject *parent, QDBusConnection connection, Handler handler);

public Q_SLOTS:
    void Activate(const QVariantMap &platformData);
    /// Torvi opens no documents: the same as Activate.
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &action, const QVariantList &parameter,
                        const QVariantMap &platformData, const QDBusMessage &message);

private:
    void carryOut(CommandLine::Request request, const QVariantMap &platformData);

    QDBusConnection m_connection;
    Handler m_handler;
};

} // namespace torvi
