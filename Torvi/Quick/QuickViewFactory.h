// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/ViewsPlugin.h"

#include <QQmlEngine>

namespace torvi {

class PopoverWindow;

/// Makes the views of VeldraUI in windows. The QML engine, and each view's state, are made when the
/// first of them is shown.
class QuickViewFactory final : public ViewFactory
{
public:
    explicit QuickViewFactory(ViewSurroundings surroundings);
    ~QuickViewFactory() override;

    [[nodiscard]] std::unique_ptr<Popover>
    makePopover(AuthStateManager &stateManager, std::function<void()> onOpenManager) override;
    [[nodiscard]] std::unique_ptr<Window>
    makeManagerWindow(AuthStateManager &stateManager,
                      std::function<void(const Window &)> onWillClose) override;

private:
    [[nodiscard]] QQmlEngine *engine();
    [[nodiscard]] std::unique_ptr<PopoverWindow>
    makePopoverWindow(AuthStateManager &stateManager, const std::function<void()> &onOpenManager);

    ViewSurroundings m_surroundings;
    std::unique_ptr<QQmlEngine> m_engine;
};

} // namespace torvi
