// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/AuthStateManager.h"
#include "GCloudStateManager/SettingsStoring.h"
#include "Torvi/StatusItem.h"

namespace torvi {

/// Draws the active context into the status item. It observes nothing: what is shown is what was
/// current at the last update(). Main thread only.
///
/// Lifetime: what it is given must outlive it.
class MenubarIconManager final
{
public:
    MenubarIconManager(StatusItem &statusItem, const AuthStateManager &stateManager,
                       const SettingsStoring &settingsStore);

    void update();

private:
    [[nodiscard]] QString title() const;

    StatusItem &m_statusItem;
    const AuthStateManager &m_stateManager;
    const SettingsStoring &m_settingsStore;
};

} // namespace torvi
