// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

namespace torvi {

/// One step from one list of rows to another, in terms of the list as the steps before left it.
struct RowChange
{
    enum class Kind {
        remove, ///< the `count` rows from `first` on
        move, ///< the row at `first`, which is then found at `to`
        insert, ///< `count` rows, the first of which is then found at `first`
    };

    Kind kind = Kind::remove;
    int first = 0;
    int count = 1;
    int to = 0;

    bool operator==(const RowChange &) const = default;
};

/// What is left of a row in the next list: nothing.
inline constexpr int kGone = -1;

/// The most steps that a list is told of one by one: past it, a view is faster when told once.
inline constexpr int kMostRowChanges = 64;

/// The fewest steps that turn a list into the next one.
///
/// `nextRows` says for each row where it stands in the next list, or kGone; no two rows stand in
/// the same place. The steps come as removals, then moves, then insertions. When that would be more
/// than kMostRowChanges steps, the rows between the unchanged beginning and the unchanged end are
/// removed and inserted as a whole.
[[nodiscard]] std::vector<RowChange> rowChanges(const std::vector<int> &nextRows, int nextCount);

} // namespace torvi
