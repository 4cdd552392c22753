// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

#include <utility>

namespace torvi {

/// The desktop's settings portal, on a bus of the test's own.
class FakeSettingsPortal final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    uint colorScheme = 0;

    explicit FakeSettingsPortal(QDBusConnection connection)
        : m_connection(std::move(connection))
    {
        m_connection.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                                    QDBusConnection::ExportAllSlots
                                        | QDBusConnection::ExportAllSignals);
        m_connection.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    void change(const QString &group, const QString &key, uint value)
    {
        Q_EMIT SettingChanged(group, key, QDBusVariant(value));
    }

public Q_SLOTS:
    /// The value is in two variants, as the real one has it.
    QDBusVariant Read(const QString &group, const QString &key)
    {
        const bool isKnown = group == QLatin1String("org.freedesktop.appearance")
            && key == QLatin1String("color-scheme");
        return QDBusVariant(
            QVariant::fromValue(QDBusVariant(isKnown ? colorScheme : uint{ 1234 })));
    }

Q_SIGNALS:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    QDBusConnection m_connection;
};

} // namespace torvi
