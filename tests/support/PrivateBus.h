// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QProcess>

#include <gtest/gtest.h>

#include <chrono>

namespace torvi {

/// A session bus of the test's own.
class PrivateBus
{
public:
    PrivateBus()
    {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       { QStringLiteral("--session"), QStringLiteral("--nofork"),
                         QStringLiteral("--nopidfile"), QStringLiteral("--print-address=1") });
        while (!m_daemon.canReadLine() && m_daemon.waitForReadyRead()) { }
        m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
        EXPECT_FALSE(m_address.isEmpty()) << "dbus-daemon did not start";
    }

    ~PrivateBus()
    {
        for (const QString &name : m_names) {
            QDBusConnection::disconnectFromBus(name);
        }
        m_daemon.kill();
        m_daemon.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(PrivateBus)

    [[nodiscard]] const QString &address() const
    {
        return m_address;
    }

    /// A connection of its own, as another program would have it. Closed with the bus.
    [[nodiscard]] QDBusConnection connect()
    {
        static int count = 0;
        m_names.append(QStringLiteral("private-%1").arg(++count));
        return QDBusConnection::connectToBus(m_address, m_names.last());
    }

    /// Ends a connection, as the end of its program would. Nobody may hold it any more.
    void disconnect(const QString &connectionName)
    {
        m_names.removeAll(connectionName);
        QDBusConnection::disconnectFromBus(connectionName);
    }

private:
    QProcess m_daemon;
    QString m_address;
    QStringList m_names;
};

} // namespace torvi
