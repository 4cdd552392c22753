// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

namespace torvi {

/// Whether the user wants dark windows, as the desktop's settings portal tells it, now and at each
/// change. Light where nobody tells. Main thread only; never blocks it.
class ColorScheme final : public QObject
{
    Q_OBJECT

public:
    /// Asks at once; the answer comes as a change.
    explicit ColorScheme(QDBusConnection connection);

    [[nodiscard]] bool isDark() const;

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void ask();
    void take(const QVariant &value);

    QDBusConnection m_connection;
    bool m_isDark = false;
};

} // namespace torvi
