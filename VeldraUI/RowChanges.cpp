// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/RowChanges.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace torvi {

namespace {

using Kind = RowChange::Kind;
using Changes = std::vector<RowChange>;

std::size_t at(int row)
{
    return static_cast<std::size_t>(row);
}

int countOf(const std::vector<int> &rows)
{
    return static_cast<int>(rows.size());
}

bool isFull(const Changes &changes)
{
    return changes.size() > kMostRowChanges;
}

/// Appends the removals, last range first, so that each one's rows are where they were.
void appendRemovals(Changes &changes, const std::vector<int> &nextRows)
{
    int end = countOf(nextRows);
    while (end > 0 && !isFull(changes)) {
        if (nextRows[at(end - 1)] != kGone) {
            --end;
            continue;
        }
        int first = end - 1;
        while (first > 0 && nextRows[at(first - 1)] == kGone) {
            --first;
        }
        changes.push_back({ Kind::remove, first, end - first, 0 });
        end = first;
    }
}

/// For each row, whether it belongs to a longest run of rows that are in order already.
std::vector<bool> rowsInOrder(const std::vector<int> &rows)
{
    std::vector<int> ends; // the row that ends the best run of each length
    std::vector<int> before(rows.size(), kGone);
    for (int row = 0; row < countOf(rows); ++row) {
        const auto longer = std::ranges::lower_bound(ends, rows[at(row)], {},
                                                     [&rows](int end) { return rows[at(end)]; });
        if (longer != ends.begin()) {
            before[at(row)] = *std::prev(longer);
        }
        if (longer == ends.end()) {
            ends.push_back(row);
        } else {
            *longer = row;
        }
    }
    std::vector<bool> inOrder(rows.size());
    for (int row = ends.empty() ? kGone : ends.back(); row != kGone; row = before[at(row)]) {
        inOrder[at(row)] = true;
    }
    return inOrder;
}

/// A row that stays: where it belongs, and whether it needs no (further) move.
struct StayingRow
{
    int next;
    bool isSettled;
};

/// Moves the row that belongs to `next` behind the last settled row that belongs before it.
RowChange settle(std::vector<StayingRow> &rows, int next)
{
    const auto from = std::ranges::find(rows, next, &StayingRow::next);
    const int first = static_cast<int>(from - rows.begin());
    rows.erase(from);
    const auto predecessor
        = std::find_if(rows.rbegin(), rows.rend(),
                       [next](const StayingRow &row) { return row.isSettled && row.next < next; });
    const int to = static_cast<int>(rows.rend() - predecessor);
    rows.insert(rows.begin() + to, { next, true });
    return { Kind::move, first, 1, to };
}

/// Appends the moves that sort `nextRows`, the next places of the rows that stay.
void appendMoves(Changes &changes, const std::vector<int> &nextRows)
{
    if (std::ranges::is_sorted(nextRows)) {
        return;
    }
    const std::vector<bool> inOrder = rowsInOrder(nextRows);
    std::vector<StayingRow> rows;
    std::vector<int> movers;
    for (int row = 0; row < countOf(nextRows); ++row) {
        rows.push_back({ nextRows[at(row)], inOrder[at(row)] });
        if (!inOrder[at(row)]) {
            movers.push_back(nextRows[at(row)]);
        }
    }
    std::ranges::sort(movers);
    for (const int mover : movers) {
        if (isFull(changes)) {
            return;
        }
        changes.push_back(settle(rows, mover));
    }
}

/// Appends the insertions, first range first, so that each one's rows end up where they belong.
void appendInsertions(Changes &changes, const std::vector<int> &staying, int nextCount)
{
    std::vector<bool> isThere(at(nextCount));
    for (const int row : staying) {
        isThere[at(row)] = true;
    }
    for (int first = 0; first < nextCount && !isFull(changes);) {
        if (isThere[at(first)]) {
            ++first;
            continue;
        }
        int end = first + 1;
        while (end < nextCount && !isThere[at(end)]) {
            ++end;
        }
        changes.push_back({ Kind::insert, first, end - first, 0 });
        first = end;
    }
}

/// Removes and inserts all rows between those at the beginning and at the end that stay as they
/// are.
Changes wholesale(const std::vector<int> &nextRows, int nextCount)
{
    const int count = countOf(nextRows);
    int head = 0;
    while (head < count && nextRows[at(head)] == head) {
        ++head;
    }
    int tail = 0;
    while (tail < std::min(count, nextCount) - head
           && nextRows[at(count - 1 - tail)] == nextCount - 1 - tail) {
        ++tail;
    }
    Changes changes;
    if (count > head + tail) {
        changes.push_back({ Kind::remove, head, count - head - tail, 0 });
    }
    if (nextCount > head + tail) {
        changes.push_back({ Kind::insert, head, nextCount - head - tail, 0 });
    }
    return changes;
}

} // namespace

std::vector<RowChange> rowChanges(const std::vector<int> &nextRows, int nextCount)
{
    std::vector<int> staying;
    staying.reserve(nextRows.size());
    std::ranges::copy_if(nextRows, std::back_inserter(staying),
                         [](int row) { return row != kGone; });

    Changes changes;
    appendRemovals(changes, nextRows);
    if (!isFull(changes)) {
        appendMoves(changes, staying);
    }
    if (!isFull(changes)) {
        appendInsertions(changes, staying, nextCount);
    }
    return isFull(changes) ? wholesale(nextRows, nextCount) : changes;
}

} // namespace torvi
