// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "VeldraUI/AuthState.h"
#include "VeldraUI/ProjectSearch.h"
#include "VeldraUI/RowModel.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace torvi {

/// One row of the project list: a project of the state manager's, and where it stands.
struct ProjectRow
{
    enum Group {
        Pinned,
        Recent,
        Others,
    };

    const Project *project = nullptr; ///< never null; owned by the model
    Group group = Others;
    bool hasGroupTitle = false;
    bool isActive = false;

    bool operator==(const ProjectRow &other) const;
};

/// The projects in their groups (pinned; recently used, newest first; others), filtered.
///
/// Within a group the order is the state manager's. It is brought up to date at once when the state
/// or the recent list changes, and tells what moved, came, went and changed.
class ProjectListModel : public RowModel<ProjectRow>
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(torvi::AuthState *stateManager READ stateManager WRITE setStateManager NOTIFY
                   stateManagerChanged REQUIRED)
    Q_PROPERTY(QString filterText READ filterText WRITE setFilterText NOTIFY filterTextChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(bool isFilterOffered READ isFilterOffered NOTIFY isFilterOfferedChanged)
    Q_PROPERTY(bool hasNoProjects READ hasNoProjects NOTIFY hasNoProjectsChanged)

public:
    enum Role {
        ProjectIdRole = Qt::UserRole,
        NameRole,
        IsPinnedRole,
        IsActiveRole,
        GroupTitleRole, ///< of a row that starts a group; empty for the others
        PositionRole, ///< in the whole list, from 1
        SetSizeRole, ///< the number of rows in the whole list
    };

    using RowModel::RowModel;

    [[nodiscard]] AuthState *stateManager() const;
    /// Must outlive this, or be null.
    void setStateManager(AuthState *stateManager);
    [[nodiscard]] QString filterText() const;
    /// Taken as it stands, white space included.
    void setFilterText(const QString &filterText);
    [[nodiscard]] int count() const;
    /// Whether there are so many projects, filtered or not, that filtering helps.
    [[nodiscard]] bool isFilterOffered() const;
    /// Whether there is nothing to list, and not just not yet.
    [[nodiscard]] bool hasNoProjects() const;

    [[nodiscard]] const ProjectRow &row(int row) const;
    /// The rows that are active or have a group title, ascending: the few that differ in height.
    [[nodiscard]] const std::vector<int> &specialRows() const;
    /// The row of the first project with this id, or -1.
    [[nodiscard]] int rowOf(const QString &projectId) const;

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void stateManagerChanged();
    void filterTextChanged();
    void countChanged();
    void isFilterOfferedChanged();
    void hasNoProjectsChanged();
    /// All rows are in their places, and all signals about them have been emitted.
    void updated();

private:
    void connectTo(AuthState &stateManager);
    void adoptProjects();
    void adoptRecents();
    void adoptContext();
    void adoptLoading();
    [[nodiscard]] std::vector<int> placesIn(const QList<Project> &next) const;
    void update(const QList<Project> &before, const std::vector<int> &nextProjects);
    void updateInPlace();
    [[nodiscard]] std::vector<ProjectRow> arranged() const;
    [[nodiscard]] std::vector<int> nextRows(const QList<Project> &before,
                                            const std::vector<int> &nextProjects,
                                            const std::vector<ProjectRow> &next) const;
    void rankRecents();
    void reportPositions();

    QPointer<AuthState> m_stateManager;
    QString m_filterText;
    QList<Project> m_projects; ///< the rows point into it: it must never detach
    ProjectSearch m_search;
    std::vector<int> m_recentRanks; ///< by project; kGone for one that is not recent
    std::optional<QString> m_activeId;
    std::vector<int> m_specialRows;
    bool m_isLoading = false;
};

} // namespace torvi
