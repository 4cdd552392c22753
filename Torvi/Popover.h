// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>

#include <optional>

namespace torvi {

/// The transient window at the status item. It closes itself on Escape and when the user goes to
/// another window of this application. Main thread only.
class Popover
{
public:
    virtual ~Popover() = default;

    [[nodiscard]] virtual bool isShown() const = 0;
    /// Shows it at the edge of what is at `anchor`, on that screen; in a corner of the screen that
    /// the user is on when there is no anchor.
    virtual void show(const std::optional<QPoint> &anchor) = 0;
    virtual void performClose() = 0;

protected:
    Popover() = default;
    Q_DISABLE_COPY_MOVE(Popover)
};

} // namespace torvi
