// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/Quick/ManagerWindow.h"
#include "Torvi/Window.h"

#include <functional>
#include <memory>

namespace torvi {

/// The manager window as the application holds it. It may be destroyed while it is being closed.
class QuickWindow final : public Window
{
public:
    using BringToFront = std::function<void(QWindow &)>;
    using MakeWindow
        = std::function<std::unique_ptr<ManagerWindow>(std::function<void()> onWillClose)>;

    QuickWindow(const MakeWindow &makeWindow, std::function<void(const Window &)> onWillClose,
                BringToFront bringToFront);
    ~QuickWindow() override;

    [[nodiscard]] bool isVisible() const override;
    void makeKeyAndOrderFront() override;

private:
    void willClose();

    std::function<void(const Window &)> m_onWillClose;
    BringToFront m_bringToFront;
    std::unique_ptr<ManagerWindow> m_window;
    bool m_isClosing = false;
};

} // namespace torvi
