// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/RowLayout.h"

#include <algorithm>
#include <utility>

namespace torvi {

RowLayout::RowLayout(int count, double rowHeight, double spacing, std::vector<HigherRow> higherRows)
    : m_count(count)
    , m_pitch(rowHeight + spacing)
    , m_spacing(spacing)
    , m_higherRows(std::move(higherRows))
{
}

double RowLayout::top(int row) const
{
    double top = row * m_pitch;
    for (const HigherRow &higher : m_higherRows) {
        if (higher.row >= row) {
            break;
        }
        top += higher.extra;
    }
    return top;
}

double RowLayout::height() const
{
    return m_count == 0 ? 0 : top(m_count) - m_spacing;
}

int RowLayout::rowAt(double y) const
{
    // The last row that starts at or above y.
    int first = 0;
    int last = std::max(0, m_count - 1);
    while (first < last) {
        const int middle = last - (last - first) / 2;
        if (top(middle) <= y) {
            first = middle;
        } else {
            last = middle - 1;
        }
    }
    return first;
}

} // namespace torvi
