// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

namespace torvi {

/// Keeps a status item registered with the panels' watcher: at once when there is one, and again
/// whenever one comes or comes back. Main thread only; never blocks it.
class StatusNotifierRegistration final : public QObject
{
    Q_OBJECT

public:
    /// `service` is the bus name that the item is exported under.
    StatusNotifierRegistration(QDBusConnection connection, QString service);

    /// Whether the present watcher has taken the item.
    [[nodiscard]] bool isRegistered() const;

Q_SIGNALS:
    void registered();

private:
    void registerItem();
    void onOwnerChanged(const QString &newOwner);

    QDBusConnection m_connection;
    QString m_service;
    QDBusServiceWatcher m_watcher;
    bool m_isRegistered = false;
};

} // namespace torvi
