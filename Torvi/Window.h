// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace torvi {

/// An ordinary window. Main thread only.
class Window
{
public:
    virtual ~Window() = default;

    /// Also true while it is minimised or covered.
    [[nodiscard]] virtual bool isVisible() const = 0;
    /// Shows it, in front of the windows of all applications, and gives it the keyboard.
    virtual void makeKeyAndOrderFront() = 0;

protected:
    Window() = default;
    Q_DISABLE_COPY_MOVE(Window)
};

} // namespace torvi
