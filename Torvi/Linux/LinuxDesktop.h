// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/Desktop.h"
#include "Torvi/Linux/ColorScheme.h"
#include "Torvi/Linux/GlobalEventMonitor.h"
#include "Torvi/Linux/SystemClipboard.h"
#include "Torvi/Linux/TaskListPolicy.h"
#include "Torvi/LoadedViews.h"

#include <QDBusConnection>

namespace torvi {

/// X11 and Wayland desktops, as freedesktop.org and the X Window System have them.
class LinuxDesktop final : public Desktop
{
public:
    using Say = std::function<void(const QString &)>;

    /// `connection` is the session bus. `say` gets what the user should know about the desktop. The
    /// application ends with 1 when its windows cannot be loaded.
    LinuxDesktop(QDBusConnection connection, Say say);

    [[nodiscard]] Clipboard &clipboard();

    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem() override;
    [[nodiscard]] GlobalEventMonitoring &globalEvents() override;
    [[nodiscard]] ActivationPolicySwitching &activationPolicy() override;
    [[nodiscard]] ViewFactory &views() override;

private:
    QDBusConnection m_connection;
    Say m_say;
    SystemClipboard m_clipboard;
    ColorScheme m_colorScheme;
    GlobalEventMonitor m_globalEvents;
    TaskListPolicy m_activationPolicy;
    LoadedViews m_views;
};

} // namespace torvi
