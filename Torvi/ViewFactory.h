// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/AuthStateManager.h"
#include "Torvi/Popover.h"
#include "Torvi/Window.h"

#include <functional>
#include <memory>

namespace torvi {

/// Makes what the user looks at. Main thread only.
///
/// Lifetime: the state manager and the factory must outlive what is made.
class ViewFactory
{
public:
    virtual ~ViewFactory() = default;

    /// Loads nothing yet. `onOpenManager` is called when the user asks for the manager window.
    [[nodiscard]] virtual std::unique_ptr<Popover> makePopover(AuthStateManager &stateManager,
                                                               std::function<void()> onOpenManager)
        = 0;

    /// A window that is not shown yet. `onWillClose` is called when it, or the system, closes the
    /// window; the window may be destroyed inside the call.
    [[nodiscard]] virtual std::unique_ptr<Window>
    makeManagerWindow(AuthStateManager &stateManager,
                      std::function<void(const Window &)> onWillClose)
        = 0;

protected:
    ViewFactory() = default;
    Q_DISABLE_COPY_MOVE(ViewFactory)
};

} // namespace torvi
