// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QRect>

#include <optional>

/// Where the popover goes. All in device-independent pixels.
namespace torvi::PopoverPlacement {

/// Sides of a screen.
struct Screen
{
    QRect geometry;
    QRect available; ///< less the panels
};

/// The popover's frame: below what is at `anchor`, or above it in the lower half of the screen;
/// without an anchor in the corner where panels have their status items. Always inside of the
/// screen's available part, and shorter than `size` where that is lower.
[[nodiscard]] QRect frame(const std::optional<QPoint> &anchor, const Screen &screen,
                          const QSize &size);

} // namespace torvi::PopoverPlacement
