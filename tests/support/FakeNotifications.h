// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <utility>

namespace torvi {

/// The desktop's notifications, on a bus of the test's own.
class FakeNotifications final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QStringList shown; ///< summary and body, one after the other

    explicit FakeNotifications(QDBusConnection connection)
        : m_connection(std::move(connection))
    {
        m_connection.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                                    QDBusConnection::ExportAllSlots);
        m_connection.registerService(QStringLiteral("org.freedesktop.Notifications"));
    }

public Q_SLOTS:
    uint Notify(const QString & /*application*/, uint /*replaces*/, const QString & /*icon*/,
                const QString &summary, const QString &body, const QStringList & /*actions*/,
                const QVariantMap & /*hints*/, int /*timeout*/)
    {
        shown << summary << body;
        return 1;
    }

private:
    QDBusConnection m_connection;
};

} // namespace torvi
