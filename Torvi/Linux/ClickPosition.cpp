// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/ClickPosition.h"

namespace torvi {

namespace {

/// More than any item is wide or high on one side of the pointer.
constexpr int kReach = 64;

} // namespace

QPoint clickPosition(const QPoint &claimed, const QPoint &pointer)
{
    const QPoint distance = claimed - pointer;
    const bool isNear = qAbs(distance.x()) <= kReach && qAbs(distance.y()) <= kReach;
    return isNear ? claimed : pointer;
}

} // namespace torvi
