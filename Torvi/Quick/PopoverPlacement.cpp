// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Quick/PopoverPlacement.h"

#include <algorithm>

namespace torvi {

namespace {

/// From the middle of an item to its edge, where no panel keeps its place free.
constexpr int kHalfItem = 14;

int clampedStart(int start, int length, int availableStart, int availableLength)
{
    const int last = availableStart + availableLength - length;
    return std::max(availableStart, std::min(start, last));
}

/// The top edge for an item at `anchor`, before it is bound to the screen.
int top(const QPoint &anchor, const PopoverPlacement::Screen &screen, int height)
{
    const QRect &available = screen.available;
    if (anchor.x() < available.left() || anchor.x() > available.right()) {
        return anchor.y() - kHalfItem; // a panel at the side
    }
    if (anchor.y() <= screen.geometry.center().y()) {
        return anchor.y() < available.top() ? available.top() : anchor.y() + kHalfItem;
    }
    return anchor.y() > available.bottom() ? available.bottom() + 1 - height
                                           : anchor.y() - kHalfItem - height;
}

/// In the corner at the right; at the bottom when only there a panel keeps its place free.
QPoint corner(const PopoverPlacement::Screen &screen)
{
    const bool isAtBottom = screen.available.bottom() < screen.geometry.bottom()
        && screen.available.top() == screen.geometry.top();
    return isAtBottom ? screen.geometry.bottomRight() : screen.geometry.topRight();
}

} // namespace

QRect PopoverPlacement::frame(const std::optional<QPoint> &anchor, const Screen &screen,
                              const QSize &size)
{
    const QRect &available = screen.available;
    const QPoint point = anchor.value_or(corner(screen));
    const int height = std::min(size.height(), available.height());
    const int y
        = anchor || point.y() > available.bottom() ? top(point, screen, height) : available.top();
    return { clampedStart(point.x() - size.width() / 2, size.width(), available.left(),
                          available.width()),
             clampedStart(y, height, available.top(), available.height()), size.width(), height };
}

} // namespace torvi
