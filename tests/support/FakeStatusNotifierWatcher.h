// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QStringList>

#include <utility>

namespace torvi {

/// What panels register with and learn of items from, on a bus of the test's own.
class FakeStatusNotifierWatcher final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER isHostRegistered)

public:
    bool isHostRegistered = true;
    QStringList registered; ///< in order, as they came

    explicit FakeStatusNotifierWatcher(QDBusConnection connection)
        : m_connection(std::move(connection))
    {
        m_connection.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                                    QDBusConnection::ExportAllContents);
        m_connection.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
    }

    ~FakeStatusNotifierWatcher() override
    {
        m_connection.unregisterService(QStringLiteral("org.kde.StatusNotifierWatcher"));
        m_connection.unregisterObject(QStringLiteral("/StatusNotifierWatcher"));
    }

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service)
    {
        registered.append(service);
    }

private:
    QDBusConnection m_connection;
};

} // namespace torvi
