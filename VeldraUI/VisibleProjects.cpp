// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/VisibleProjects.h"

#include <algorithm>
#include <cmath>

namespace torvi {

namespace {

std::size_t at(int index)
{
    return static_cast<std::size_t>(index);
}

} // namespace

VisibleProjects::VisibleProjects(QObject *parent)
    : RowModel(parent)
{
    connect(this, &VisibleProjects::geometryChanged, this, &VisibleProjects::adoptGeometry);
    connect(this, &VisibleProjects::viewportChanged, this, &VisibleProjects::showRows);
}

ProjectListModel *VisibleProjects::source() const
{
    return m_source;
}

void VisibleProjects::setSource(ProjectListModel *source)
{
    if (m_source == source) {
        return;
    }
    if (m_source) {
        m_source->disconnect(this);
    }
    m_source = source;
    if (source) {
        connect(source, &ProjectListModel::updated, this, &VisibleProjects::adoptSource);
        connect(source, &QAbstractItemModel::rowsInserted, this,
                [this](const QModelIndex &, int first, int last) { followInsertion(first, last); });
        connect(source, &QAbstractItemModel::rowsRemoved, this,
                [this](const QModelIndex &, int first, int last) { followRemoval(first, last); });
        connect(source, &QAbstractItemModel::rowsMoved, this,
                [this](const QModelIndex &, int first, int, const QModelIndex &, int before) {
                    followMove(first, before > first ? before - 1 : before);
                });
    }
    Q_EMIT sourceChanged();
    adoptSource();
}

double VisibleProjects::height() const
{
    return m_height;
}

int VisibleProjects::currentRow() const
{
    return m_currentRow;
}

void VisibleProjects::setCurrentRow(int row)
{
    const int count = m_source ? m_source->count() : 0;
    m_currentRow = count == 0 ? kGone : std::clamp(row, 0, count - 1);
    m_isCurrentRemoved = false;
    settleCurrentRow();
    showRows();
}

QVariant VisibleProjects::data(const QModelIndex &index, int role) const
{
    const VisibleProject &item = rowAt(index);
    switch (role) {
    case RowRole:
        return item.row;
    case RowYRole:
        return item.y;
    default:
        return item.source.data(role);
    }
}

QHash<int, QByteArray> VisibleProjects::roleNames() const
{
    QHash<int, QByteArray> names = m_source ? m_source->roleNames() : QHash<int, QByteArray>();
    names.insert(RowRole, "row");
    names.insert(RowYRole, "rowY");
    return names;
}

void VisibleProjects::adoptSource()
{
    ++m_revision;
    settleCurrentRow();
    adoptGeometry();
}

void VisibleProjects::adoptGeometry()
{
    std::vector<RowLayout::HigherRow> higherRows;
    if (m_source) {
        for (const int row : m_source->specialRows()) {
            const ProjectRow &special = m_source->row(row);
            const double title = special.hasGroupTitle ? m_titleHeight + m_spacing : 0;
            const double active = special.isActive ? m_activeRowHeight - m_rowHeight : 0;
            higherRows.push_back({ row, title + active });
        }
    }
    m_layout = RowLayout(m_source ? m_source->count() : 0, m_rowHeight, m_spacing,
                         std::move(higherRows));
    showRows();
    if (m_height != m_layout.height()) {
        m_height = m_layout.height();
        Q_EMIT heightChanged();
    }
}

void VisibleProjects::showRows()
{
    m_itemCount = neededItems();
    const std::vector<int> wanted = wantedRows();
    std::vector<VisibleProject> next;
    next.reserve(wanted.size());
    for (const int row : wanted) {
        next.push_back({ m_source->index(row), row, m_layout.top(row), m_revision });
    }
    change(std::move(next), itemsFor(wanted));
}

/// As many as the viewport shows of the rows where it begins above them, and then never fewer than
/// before, so that none need be made while it moves.
int VisibleProjects::neededItems() const
{
    if (!m_source || m_rowHeight <= 0 || m_viewportHeight <= 0) {
        return 0;
    }
    const auto fitting = [this](double height) {
        return static_cast<int>(std::ceil(std::max(0.0, height) / (m_rowHeight + m_spacing))) + 2;
    };
    return std::clamp(m_itemCount, fitting(m_viewportHeight + std::min(0.0, m_viewportY)),
                      fitting(m_viewportHeight));
}

std::vector<int> VisibleProjects::wantedRows() const
{
    if (m_itemCount == 0) {
        return {};
    }
    const int count = m_source->count();
    const int first = std::clamp(m_layout.rowAt(m_viewportY), 0, std::max(0, count - m_itemCount));
    const int end = std::min(count, first + m_itemCount);
    std::vector<int> wanted;
    if (m_currentRow != kGone && m_currentRow < first) {
        wanted.push_back(m_currentRow);
    }
    for (int row = first; row < end; ++row) {
        wanted.push_back(row);
    }
    if (m_currentRow >= end && m_currentRow < count) {
        wanted.push_back(m_currentRow);
    }
    return wanted;
}

/// For each item, which of the wanted rows is its next: its own, or one that has no item yet.
std::vector<int> VisibleProjects::itemsFor(const std::vector<int> &wanted) const
{
    std::vector<int> next;
    std::vector<bool> hasItem(wanted.size());
    for (const VisibleProject &item : rows()) {
        const int row = item.source.row();
        const auto place = std::ranges::lower_bound(wanted, row);
        const bool isWanted = place != wanted.end() && *place == row;
        next.push_back(isWanted ? static_cast<int>(place - wanted.begin()) : kGone);
        if (isWanted) {
            hasItem[at(next.back())] = true;
        }
    }
    int free = 0;
    for (int &place : next) {
        if (place != kGone) {
            continue;
        }
        while (at(free) < wanted.size() && hasItem[at(free)]) {
            ++free;
        }
        if (at(free) < wanted.size()) {
            place = free++;
        }
    }
    return next;
}

void VisibleProjects::followInsertion(int first, int last)
{
    if (!m_isCurrentRemoved && m_currentRow >= first) {
        m_currentRow += last - first + 1;
    }
}

void VisibleProjects::followRemoval(int first, int last)
{
    if (m_isCurrentRemoved || m_currentRow < first) {
        return;
    }
    if (m_currentRow <= last) {
        m_isCurrentRemoved = true;
    } else {
        m_currentRow -= last - first + 1;
    }
}

void VisibleProjects::followMove(int from, int to)
{
    if (m_isCurrentRemoved || m_currentRow == from) {
        return;
    }
    if (from < m_currentRow && to >= m_currentRow) {
        --m_currentRow;
    } else if (from > m_currentRow && to <= m_currentRow) {
        ++m_currentRow;
    }
}

/// Finds the keyboard's place again when its row was removed, perhaps only to be inserted again.
void VisibleProjects::settleCurrentRow()
{
    const int count = m_source ? m_source->count() : 0;
    if (std::exchange(m_isCurrentRemoved, false)) {
        const int row = m_source->rowOf(m_currentId);
        m_currentRow = row == kGone ? m_currentRow : row;
    }
    m_currentRow = count == 0 ? kGone : std::clamp(m_currentRow, 0, count - 1);
    m_currentId = m_currentRow == kGone ? QString() : m_source->row(m_currentRow).project->id;
    if (std::exchange(m_reportedCurrentRow, m_currentRow) != m_currentRow) {
        Q_EMIT currentRowChanged();
    }
}

} // namespace torvi
