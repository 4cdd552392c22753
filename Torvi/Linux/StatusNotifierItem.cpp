// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/StatusNotifierItem.h"

#include "Torvi/Linux/ActivationToken.h"
#include "Torvi/Linux/ClickPosition.h"
#include "Torvi/Linux/Session.h"

#include <QCoreApplication>
#include <QCursor>

#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

QString objectPath()
{
    return u"/StatusNotifierItem"_s;
}

/// The text as markup. GTK panels break lines at line feeds and know no <br>, Plasma the reverse.
QString markup(const QString &text)
{
    const bool isPlasma = qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(u"KDE");
    const QString escaped = text.toHtmlEscaped();
    return isPlasma ? QString(escaped).replace(u'\n', u"<br/>"_s) : escaped;
}

} // namespace

QString StatusNotifierItem::serviceName()
{
    return u"org.kde.StatusNotifierItem-%1-1"_s.arg(QCoreApplication::applicationPid());
}

StatusNotifierItem::StatusNotifierItem(QDBusConnection connection)
    : m_connection(std::move(connection))
    , m_adaptor(new StatusNotifierAdaptor(&m_object, m_connection))
{
    if (!m_connection.isConnected()) {
        return;
    }
    m_adaptor->onActivationToken(&ActivationToken::keep);
    m_connection.registerObject(objectPath(), &m_object, QDBusConnection::ExportAdaptors);
    m_connection.registerService(serviceName());
    m_registration.emplace(m_connection, serviceName());
}

StatusNotifierItem::~StatusNotifierItem()
{
    if (m_registration) {
        m_registration.reset();
        m_connection.unregisterService(serviceName());
        m_connection.unregisterObject(objectPath());
    }
}

bool StatusNotifierItem::hasButton() const
{
    return m_registration.has_value();
}

void StatusNotifierItem::setImage(const QString &symbol, const QString &accessibilityDescription)
{
    m_adaptor->setIcon(symbol, accessibilityDescription);
}

void StatusNotifierItem::setTitle(const QString &title)
{
    m_adaptor->setLabel(title);
}

void StatusNotifierItem::setToolTip(const QString &title, const QString &text)
{
    m_adaptor->setToolTip(title, markup(text));
}

void StatusNotifierItem::setAction(std::function<void(const QPoint &)> action)
{
    m_adaptor->onActivate([action = std::move(action)](const QPoint &claimed) {
        // XWayland knows where the pointer is only while it is over an X11 window.
        action(Session::isWayland() ? claimed : clickPosition(claimed, QCursor::pos()));
    });
}

StatusNotifierRegistration *StatusNotifierItem::registration()
{
    return m_registration ? &*m_registration : nullptr;
}

} // namespace torvi
