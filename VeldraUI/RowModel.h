// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "VeldraUI/RowChanges.h"

#include <QAbstractListModel>

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace torvi {

/// A list of rows that is brought up to date by telling its views what moved, came, went and
/// changed; it is never reset, so that their place in it stays.
///
/// `Row` is a value with `==`; `row` numbers are those of the model.
template <typename Row>
class RowModel : public QAbstractListModel
{
public:
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }

protected:
    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] const std::vector<Row> &rows() const
    {
        return m_rows;
    }

    [[nodiscard]] const Row &rowAt(const QModelIndex &index) const
    {
        return m_rows[static_cast<std::size_t>(index.row())];
    }

    /// Turns the rows into `next`; `nextRows` as in rowChanges(). Whether any row moved, came or
    /// went. A row that stays reads as it was until all have their place.
    bool change(std::vector<Row> next, const std::vector<int> &nextRows)
    {
        const std::vector<RowChange> changes = rowChanges(nextRows, static_cast<int>(next.size()));
        for (const RowChange &step : changes) {
            apply(step, next);
        }
        std::swap(m_rows, next);
        reportDifferences(next);
        return !changes.empty();
    }

private:
    void apply(const RowChange &step, const std::vector<Row> &next)
    {
        const auto first = m_rows.begin() + step.first;
        switch (step.kind) {
        case RowChange::Kind::remove:
            beginRemoveRows({}, step.first, step.first + step.count - 1);
            m_rows.erase(first, first + step.count);
            endRemoveRows();
            break;
        case RowChange::Kind::move:
            move(step.first, step.to);
            break;
        case RowChange::Kind::insert: {
            beginInsertRows({}, step.first, step.first + step.count - 1);
            const auto source = next.begin() + step.first;
            m_rows.insert(first, source, source + step.count);
            endInsertRows();
            break;
        }
        }
    }

    void move(int from, int to)
    {
        const auto begin = m_rows.begin();
        if (from < to) {
            beginMoveRows({}, from, from, {}, to + 1);
            std::rotate(begin + from, begin + from + 1, begin + to + 1);
        } else {
            beginMoveRows({}, from, from, {}, to);
            std::rotate(begin + to, begin + from, begin + from + 1);
        }
        endMoveRows();
    }

    void reportDifferences(const std::vector<Row> &before)
    {
        const std::size_t count = m_rows.size();
        for (std::size_t first = 0; first < count; ++first) {
            if (m_rows[first] == before[first]) {
                continue;
            }
            std::size_t last = first;
            while (last + 1 < count && m_rows[last + 1] != before[last + 1]) {
                ++last;
            }
            Q_EMIT dataChanged(index(static_cast<int>(first)), index(static_cast<int>(last)));
            first = last;
        }
    }

    std::vector<Row> m_rows;
};

} // namespace torvi
