// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/StatusNotifierRegistration.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

QString watcherService()
{
    return u"org.kde.StatusNotifierWatcher"_s;
}

} // namespace

StatusNotifierRegistration::StatusNotifierRegistration(QDBusConnection connection, QString service)
    : m_connection(std::move(connection))
    , m_service(std::move(service))
    , m_watcher(watcherService(), m_connection, QDBusServiceWatcher::WatchForOwnerChange)
{
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString & /*service*/, const QString & /*oldOwner*/,
                   const QString &newOwner) { onOwnerChanged(newOwner); });
    registerItem();
}

bool StatusNotifierRegistration::isRegistered() const
{
    return m_isRegistered;
}

void StatusNotifierRegistration::onOwnerChanged(const QString &newOwner)
{
    m_isRegistered = false;
    if (!newOwner.isEmpty()) {
        registerItem();
    }
}

void StatusNotifierRegistration::registerItem()
{
    QDBusMessage call
        = QDBusMessage::createMethodCall(watcherService(), u"/StatusNotifierWatcher"_s,
                                         watcherService(), u"RegisterStatusNotifierItem"_s);
    call << m_service;
    auto *pending = new QDBusPendingCallWatcher(m_connection.asyncCall(call), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                if (const QDBusPendingReply<> reply = *finished; reply.isValid()) {
                    m_isRegistered = true;
                    Q_EMIT registered();
                }
            });
}

} // namespace torvi
