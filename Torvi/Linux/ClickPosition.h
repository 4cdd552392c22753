// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>

namespace torvi {

/// Where a click on the status item was, from the position that the panel `claimed` and that of the
/// pointer. Some panels claim a fixed place or one inside of themselves; the pointer is over the
/// item when it was clicked, so that the claim counts only near to it.
[[nodiscard]] QPoint clickPosition(const QPoint &claimed, const QPoint &pointer);

} // namespace torvi
