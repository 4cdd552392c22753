// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/ItemClick.h"

#include <utility>

namespace torvi {

void ItemClick::closedPopover(const std::optional<QPoint> &position, Clock::time_point at)
{
    m_press = Press{ position, at };
}

void ItemClick::closedNothing()
{
    m_press.reset();
}

bool ItemClick::takeIsSame(const QPoint &position, Clock::time_point at)
{
    const std::optional<Press> press = std::exchange(m_press, std::nullopt);
    if (!press) {
        return false;
    }
    if (!press->position) {
        return at - press->at <= kLongestDelay;
    }
    const QPoint moved = position - *press->position;
    return at - press->at <= kLongestClick && moved.manhattanLength() <= kReach;
}

} // namespace torvi
