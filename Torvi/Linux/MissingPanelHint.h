// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/Linux/StatusNotifierRegistration.h"

#include <QTimer>

#include <chrono>
#include <functional>

namespace torvi {

/// Says once, in a desktop notification and through `say`, how Torvi is reached where no panel has
/// shown its status item. Main thread only; never blocks it.
class MissingPanelHint final : public QObject
{
    Q_OBJECT

public:
    /// At log-in the panel may start after us.
    static constexpr std::chrono::seconds kPatience{ 8 };

    [[nodiscard]] static QString text();

    /// Looks after `patience`. `registration` becomes the parent.
    MissingPanelHint(QDBusConnection connection, StatusNotifierRegistration *registration,
                     std::function<void(const QString &)> say,
                     std::chrono::milliseconds patience = kPatience);

Q_SIGNALS:
    /// Whether the item is shown is known now, and said if it is not.
    void decided(bool isPanelThere);

private:
    void look();
    void decide(bool isPanelThere);
    void notify();

    QDBusConnection m_connection;
    const StatusNotifierRegistration *m_registration;
    std::function<void(const QString &)> m_say;
    QTimer m_timer;
};

} // namespace torvi
