// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QObject>

namespace torvi {

/// Collects one signal of one object, as another program on the bus sees it.
class BusSignals final : public QObject
{
    Q_OBJECT

public:
    QList<QVariantList> received; ///< the arguments of each

    BusSignals(QDBusConnection connection, const QString &service, const QString &path,
               const QString &interface, const QString &name)
    {
        connection.connect(service, path, interface, name, this, SLOT(receive(QDBusMessage)));
        // The bus answers in order: from here on it passes the signals on.
        static_cast<void>(connection.interface()->isServiceRegistered(service));
    }

public Q_SLOTS:
    void receive(const QDBusMessage &message)
    {
        received.append(message.arguments());
    }
};

} // namespace torvi
