// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/Popover.h"
#include "Torvi/Quick/PopoverWindow.h"

#include <functional>
#include <memory>

namespace torvi {

/// A popover whose window and content are made when it is shown for the first time.
class QuickPopover final : public Popover
{
public:
    static constexpr QSize kSize{ 400, 750 };

    using MakeWindow = std::function<std::unique_ptr<PopoverWindow>()>;
    using BringToFront = std::function<void(QWindow &)>;

    QuickPopover(MakeWindow makeWindow, BringToFront bringToFront);

    [[nodiscard]] bool isShown() const override;
    void show(const std::optional<QPoint> &anchor) override;
    void performClose() override;

private:
    MakeWindow m_makeWindow;
    BringToFront m_bringToFront;
    std::unique_ptr<PopoverWindow> m_window;
};

} // namespace torvi
