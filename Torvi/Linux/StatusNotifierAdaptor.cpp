// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/StatusNotifierAdaptor.h"

#include "Torvi/Linux/StatusSymbol.h"

#include <QCoreApplication>
#include <QDBusMetaType>

#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

StatusNotifierAdaptor::StatusNotifierAdaptor(QObject *parent, QDBusConnection connection)
    : QDBusAbstractAdaptor(parent)
    , m_connection(std::move(connection))
    , m_iconThemePath(StatusSymbol::iconThemePath(QCoreApplication::applicationDirPath()))
{
    qDBusRegisterMetaType<IconPixmap>();
    qDBusRegisterMetaType<IconPixmaps>();
    qDBusRegisterMetaType<ItemToolTip>();
}

void StatusNotifierAdaptor::setIcon(const QString &symbol, const QString &accessibleDescription)
{
    if (m_symbol == symbol && m_accessibleDescription == accessibleDescription) {
        return;
    }
    m_symbol = symbol;
    m_accessibleDescription = accessibleDescription;
    Q_EMIT NewIcon();
}

void StatusNotifierAdaptor::setLabel(const QString &label)
{
    if (m_label != label) {
        m_label = label;
        Q_EMIT XAyatanaNewLabel(label, label);
    }
}

void StatusNotifierAdaptor::setToolTip(const QString &title, const QString &markup)
{
    const ItemToolTip toolTip{ {}, {}, title, markup };
    if (m_toolTip != toolTip) {
        m_toolTip = toolTip;
        Q_EMIT NewToolTip();
    }
}

void StatusNotifierAdaptor::onActivate(OnActivate handler)
{
    m_onActivate = std::move(handler);
}

void StatusNotifierAdaptor::onActivationToken(OnToken handler)
{
    m_onToken = std::move(handler);
}

QString StatusNotifierAdaptor::category() const
{
    return u"ApplicationStatus"_s;
}

QString StatusNotifierAdaptor::id() const
{
    return u"com.veldra.Torvi"_s;
}

QString StatusNotifierAdaptor::title() const
{
    return u"Torvi"_s;
}

QString StatusNotifierAdaptor::status() const
{
    return u"Active"_s;
}

int StatusNotifierAdaptor::windowId() const
{
    return 0;
}

QString StatusNotifierAdaptor::iconThemePath() const
{
    return m_iconThemePath;
}

QString StatusNotifierAdaptor::iconName() const
{
    return StatusSymbol::iconName(m_symbol, m_iconThemePath);
}

QString StatusNotifierAdaptor::iconAccessibleDesc() const
{
    return m_accessibleDescription;
}

IconPixmaps StatusNotifierAdaptor::iconPixmap() const
{
    return StatusSymbol::pixmaps(m_symbol);
}

QString StatusNotifierAdaptor::noName() const
{
    return {};
}

IconPixmaps StatusNotifierAdaptor::noPixmap() const
{
    return {};
}

ItemToolTip StatusNotifierAdaptor::toolTip() const
{
    return m_toolTip;
}

bool StatusNotifierAdaptor::itemIsMenu() const
{
    return false;
}

QDBusObjectPath StatusNotifierAdaptor::menu() const
{
    // The path by which panels know that there is none; "/" makes some of them look for a menu.
    return QDBusObjectPath(u"/NO_DBUSMENU"_s);
}

QString StatusNotifierAdaptor::label() const
{
    return m_label;
}

uint StatusNotifierAdaptor::orderingIndex() const
{
    return 0;
}

void StatusNotifierAdaptor::Activate(int x, int y, const QDBusMessage &call)
{
    if (m_onActivate) {
        m_onActivate({ x, y });
    }
    keepSingleClicks(call);
}

/// GNOME Shell's extension passes single clicks on only until one is answered with success; then it
/// waits for double clicks. So it gets an error: the one by which GLib says "cancelled", which the
/// extension neither logs nor takes for a missing method.
void StatusNotifierAdaptor::keepSingleClicks(const QDBusMessage &call)
{
    if (!qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(u"GNOME")) {
        return;
    }
    call.setDelayedReply(true);
    m_connection.send(call.createErrorReply(
        u"org.gtk.GDBus.UnmappedGError.Quark._g_2dio_2derror_2dquark.Code19"_s, u"Done"_s));
}

// One kind of click is enough: the others do nothing, but panels expect an answer.
void StatusNotifierAdaptor::SecondaryActivate(int /*x*/, int /*y*/) { }

void StatusNotifierAdaptor::XAyatanaSecondaryActivate(uint /*timestamp*/) { }

void StatusNotifierAdaptor::ContextMenu(int /*x*/, int /*y*/) { }

void StatusNotifierAdaptor::Scroll(int /*delta*/, const QString & /*orientation*/) { }

void StatusNotifierAdaptor::ProvideXdgActivationToken(const QString &token)
{
    if (m_onToken) {
        m_onToken(token);
    }
}

} // namespace torvi
