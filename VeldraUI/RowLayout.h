// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

namespace torvi {

/// A column of rows that are equally high but for a few, told without looking at each of them.
class RowLayout final
{
public:
    /// A row that is higher than the others by `extra`.
    struct HigherRow
    {
        int row;
        double extra;
    };

    RowLayout() = default;
    /// `higherRows` ascend; `spacing` lies between two rows.
    RowLayout(int count, double rowHeight, double spacing, std::vector<HigherRow> higherRows);

    [[nodiscard]] double top(int row) const;
    [[nodiscard]] double height() const;
    /// The last row that begins at `y` or above it; the first row when `y` lies above it.
    [[nodiscard]] int rowAt(double y) const;

private:
    int m_count = 0;
    double m_pitch = 0;
    double m_spacing = 0;
    std::vector<HigherRow> m_higherRows;
};

} // namespace torvi
