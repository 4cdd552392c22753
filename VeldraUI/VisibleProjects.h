// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "VeldraUI/ProjectListModel.h"
#include "VeldraUI/RowLayout.h"

#include <QPersistentModelIndex>

namespace torvi {

/// A project row that is on screen, or nearly.
struct VisibleProject
{
    QPersistentModelIndex source;
    int row = 0;
    double y = 0;
    int revision = 0; ///< differs when the project's data may

    bool operator==(const VisibleProject &) const = default;
};

/// The rows of a project list that a viewport shows, each with its place: what a Repeater makes
/// items for, so that a list costs what is on screen.
///
/// As the viewport moves, an item whose row leaves it is given a row that enters it. The items stay
/// in the order of their rows.
class VisibleProjects : public RowModel<VisibleProject>
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        torvi::ProjectListModel *source READ source WRITE setSource NOTIFY sourceChanged REQUIRED)
    // The heights of the rows and, below, of what is above the first row of a group.
    Q_PROPERTY(double rowHeight MEMBER m_rowHeight NOTIFY geometryChanged)
    Q_PROPERTY(double activeRowHeight MEMBER m_activeRowHeight NOTIFY geometryChanged)
    Q_PROPERTY(double titleHeight MEMBER m_titleHeight NOTIFY geometryChanged)
    Q_PROPERTY(double spacing MEMBER m_spacing NOTIFY geometryChanged)
    // What is on screen, in the coordinates of the rows.
    Q_PROPERTY(double viewportY MEMBER m_viewportY NOTIFY viewportChanged)
    Q_PROPERTY(double viewportHeight MEMBER m_viewportHeight NOTIFY viewportChanged)
    Q_PROPERTY(double height READ height NOTIFY heightChanged)
    Q_PROPERTY(int currentRow READ currentRow WRITE setCurrentRow NOTIFY currentRowChanged)

public:
    enum Role {
        RowRole = ProjectListModel::SetSizeRole + 1,
        RowYRole,
    };

    explicit VisibleProjects(QObject *parent = nullptr);

    [[nodiscard]] ProjectListModel *source() const;
    /// Must outlive this, or be null.
    void setSource(ProjectListModel *source);
    /// Of all rows.
    [[nodiscard]] double height() const;

    /// The keyboard's place, -1 when there are no rows. It always has an item, on screen or not. It
    /// stays with its row as rows come and go before it, and where it is when the row itself
    /// leaves.
    [[nodiscard]] int currentRow() const;
    /// Bound to the rows that there are.
    void setCurrentRow(int row);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void sourceChanged();
    void geometryChanged();
    void viewportChanged();
    void heightChanged();
    void currentRowChanged();

private:
    void adoptSource();
    void adoptGeometry();
    void showRows();
    [[nodiscard]] int neededItems() const;
    [[nodiscard]] std::vector<int> wantedRows() const;
    [[nodiscard]] std::vector<int> itemsFor(const std::vector<int> &wanted) const;
    void followInsertion(int first, int last);
    void followRemoval(int first, int last);
    void followMove(int from, int to);
    void settleCurrentRow();

    QPointer<ProjectListModel> m_source;
    RowLayout m_layout;
    double m_rowHeight = 0;
    double m_activeRowHeight = 0;
    double m_titleHeight = 0;
    double m_spacing = 0;
    double m_viewportY = 0;
    double m_viewportHeight = 0;
    double m_height = 0;
    int m_itemCount = 0; ///< besides that of the keyboard's place
    int m_revision = 0;
    int m_currentRow = kGone;
    int m_reportedCurrentRow = kGone;
    QString m_currentId;
    bool m_isCurrentRemoved = false;
};

} // namespace torvi
