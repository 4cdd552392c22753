// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>

#include <chrono>
#include <optional>

namespace torvi {

/// Tells the click that has just closed the popover from the next one.
///
/// A press on the status item itself is seen by the global monitor, which closes the popover, and
/// then by the panel, which activates the item: that activation must not open the popover again.
/// It is the same click when nothing was pressed in between, the pointer is still there, and not
/// much time has passed (an item can also be activated from the keyboard).
class ItemClick final
{
public:
    using Clock = std::chrono::steady_clock;

    /// Panels activate at the release: as long as a button may be held down.
    static constexpr std::chrono::milliseconds kLongestClick{ 2000 };
    /// As long as a panel may take when only the loss of the focus was seen.
    static constexpr std::chrono::milliseconds kLongestDelay{ 400 };
    /// How far the two positions may be apart, in device-independent pixels: about an item.
    static constexpr int kReach = 64;

    /// A press outside of the application closed the popover. `position` is absent where the system
    /// does not tell it.
    void closedPopover(const std::optional<QPoint> &position, Clock::time_point at);
    /// A press outside of the application closed nothing.
    void closedNothing();
    /// Whether the activation at `position` belongs to the press that closed the popover. That
    /// press is then used up.
    [[nodiscard]] bool takeIsSame(const QPoint &position, Clock::time_point at);

private:
    struct Press
    {
        std::optional<QPoint> position;
        Clock::time_point at;
    };

    std::optional<Press> m_press;
};

} // namespace torvi
