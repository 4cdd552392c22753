// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/ViewsPlugin.h"

#include <thread>

namespace torvi {

/// The views, from a module that is loaded when the first of them is shown: most who start Torvi
/// look at its item only, and should not pay for libraries that draw windows.
class LoadedViews final : public ViewFactory
{
public:
    /// `onFailure` gets a sentence when `module` cannot be loaded; nothing is shown then.
    LoadedViews(QString module, ViewSurroundings surroundings,
                std::function<void(const QString &)> onFailure);
    ~LoadedViews() override;

    /// The module that belongs to the program at `programDirectory`, installed or built.
    [[nodiscard]] static QString module(const QString &programDirectory);

    [[nodiscard]] std::unique_ptr<Popover>
    makePopover(AuthStateManager &stateManager, std::function<void()> onOpenManager) override;
    [[nodiscard]] std::unique_ptr<Window>
    makeManagerWindow(AuthStateManager &stateManager,
                      std::function<void(const Window &)> onWillClose) override;

private:
    /// Null when the module cannot be loaded.
    [[nodiscard]] ViewFactory *views();

    QString m_module;
    ViewSurroundings m_surroundings;
    std::function<void(const QString &)> m_onFailure;
    std::unique_ptr<ViewFactory> m_views;
    std::jthread m_fontReading;
};

} // namespace torvi
