// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/ProjectListModel.h"

#include "VeldraUI/NextRows.h"

#include <algorithm>
#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

/// Up to here a list is taken in at a glance.
constexpr int kMostProjectsWithoutFilter = 5;

std::size_t at(qsizetype index)
{
    return static_cast<std::size_t>(index);
}

bool looksLike(const Project &left, const Project &right)
{
    return left.id == right.id && left.name == right.name && left.isPinned == right.isPinned;
}

bool haveSameTexts(const QList<Project> &left, const QList<Project> &right)
{
    return std::ranges::equal(left, right, [](const Project &one, const Project &other) {
        return one.id == other.id && one.name == other.name;
    });
}

QString groupTitle(const ProjectRow &row)
{
    if (!row.hasGroupTitle) {
        return {};
    }
    return row.group == ProjectRow::Recent ? ProjectListModel::tr("Recently Used")
                                           : ProjectListModel::tr("All Projects");
}

std::vector<int> identity(qsizetype count)
{
    std::vector<int> same(at(count));
    std::iota(same.begin(), same.end(), 0);
    return same;
}

} // namespace

bool ProjectRow::operator==(const ProjectRow &other) const
{
    return group == other.group && hasGroupTitle == other.hasGroupTitle
        && isActive == other.isActive
        && (project == other.project || looksLike(*project, *other.project));
}

AuthState *ProjectListModel::stateManager() const
{
    return m_stateManager;
}

void ProjectListModel::setStateManager(AuthState *stateManager)
{
    if (m_stateManager == stateManager) {
        return;
    }
    if (m_stateManager) {
        m_stateManager->manager().disconnect(this);
        m_stateManager->manager().recentStore().disconnect(this);
    }
    m_stateManager = stateManager;
    if (stateManager) {
        connectTo(*stateManager);
    }
    Q_EMIT stateManagerChanged();
    adoptLoading();
    adoptContext();
    adoptProjects();
}

void ProjectListModel::connectTo(AuthState &stateManager)
{
    const AuthStateManager &manager = stateManager.manager();
    connect(&manager, &AuthStateManager::projectsChanged, this, &ProjectListModel::adoptProjects);
    connect(&manager, &AuthStateManager::currentContextChanged, this,
            &ProjectListModel::adoptContext);
    connect(&manager, &AuthStateManager::isLoadingChanged, this, &ProjectListModel::adoptLoading);
    connect(&manager.recentStore(), &RecentStoring::changed, this, &ProjectListModel::adoptRecents);
}

QString ProjectListModel::filterText() const
{
    return m_filterText;
}

void ProjectListModel::setFilterText(const QString &filterText)
{
    if (m_filterText != filterText) {
        m_filterText = filterText;
        Q_EMIT filterTextChanged();
        updateInPlace();
    }
}

int ProjectListModel::count() const
{
    return rowCount();
}

bool ProjectListModel::isFilterOffered() const
{
    return m_projects.size() > kMostProjectsWithoutFilter;
}

bool ProjectListModel::hasNoProjects() const
{
    return m_projects.isEmpty() && !m_isLoading;
}

const ProjectRow &ProjectListModel::row(int row) const
{
    return rows()[at(row)];
}

const std::vector<int> &ProjectListModel::specialRows() const
{
    return m_specialRows;
}

int ProjectListModel::rowOf(const QString &projectId) const
{
    const auto found = std::ranges::find_if(
        rows(), [&projectId](const ProjectRow &row) { return row.project->id == projectId; });
    return found == rows().end() ? kGone : static_cast<int>(found - rows().begin());
}

QVariant ProjectListModel::data(const QModelIndex &index, int role) const
{
    const ProjectRow &row = rowAt(index);
    switch (role) {
    case ProjectIdRole:
        return row.project->id;
    case NameRole:
        return row.project->name;
    case IsPinnedRole:
        return row.project->isPinned;
    case IsActiveRole:
        return row.isActive;
    case GroupTitleRole:
        return groupTitle(row);
    case PositionRole:
        return index.row() + 1;
    case SetSizeRole:
        return count();
    default:
        return {};
    }
}

QHash<int, QByteArray> ProjectListModel::roleNames() const
{
    return { { ProjectIdRole, "projectId" },   { NameRole, "name" },
             { IsPinnedRole, "isPinned" },     { IsActiveRole, "isActive" },
             { GroupTitleRole, "groupTitle" }, { PositionRole, "position" },
             { SetSizeRole, "setSize" } };
}

void ProjectListModel::adoptLoading()
{
    const bool hadNoProjects = hasNoProjects();
    m_isLoading = !m_stateManager.isNull() && m_stateManager->isLoading();
    if (hasNoProjects() != hadNoProjects) {
        Q_EMIT hasNoProjectsChanged();
    }
}

void ProjectListModel::adoptContext()
{
    std::optional<QString> activeId;
    if (m_stateManager && m_stateManager->hasActiveProject()) {
        activeId = m_stateManager->activeProjectId();
    }
    if (m_activeId != activeId) {
        m_activeId = std::move(activeId);
        updateInPlace();
    }
}

void ProjectListModel::adoptRecents()
{
    rankRecents();
    updateInPlace();
}

void ProjectListModel::rankRecents()
{
    QHash<QString, int> ranks;
    if (m_stateManager) {
        const QStringList ids = m_stateManager->manager().recentStore().recentProjectIds();
        for (qsizetype rank = ids.size(); rank-- > 0;) {
            ranks.insert(ids[rank], static_cast<int>(rank));
        }
    }
    m_recentRanks.clear();
    m_recentRanks.reserve(at(m_projects.size()));
    for (const Project &project : std::as_const(m_projects)) {
        m_recentRanks.push_back(ranks.value(project.id, kGone));
    }
}

void ProjectListModel::adoptProjects()
{
    const bool wasFilterOffered = isFilterOffered();
    const bool hadNoProjects = hasNoProjects();
    const QList<Project> next
        = m_stateManager ? m_stateManager->manager().projects() : QList<Project>();
    const std::vector<int> places = placesIn(next);
    if (!haveSameTexts(m_projects, next)) {
        m_search = ProjectSearch(next);
    }
    const QList<Project> before = std::exchange(m_projects, next);
    rankRecents();
    update(before, places);
    if (isFilterOffered() != wasFilterOffered) {
        Q_EMIT isFilterOfferedChanged();
    }
    if (hasNoProjects() != hadNoProjects) {
        Q_EMIT hasNoProjectsChanged();
    }
}

/// Where each project stands in `next`, or kGone.
std::vector<int> ProjectListModel::placesIn(const QList<Project> &next) const
{
    if (std::ranges::equal(m_projects, next, {}, &Project::id, &Project::id)) {
        return identity(next.size());
    }
    return nextRowsByIdentity(m_projects, next, &Project::id);
}

void ProjectListModel::updateInPlace()
{
    update(m_projects, identity(m_projects.size()));
}

/// `before` is the list that the rows point into; `nextProjects` says where its projects are now.
void ProjectListModel::update(const QList<Project> &before, const std::vector<int> &nextProjects)
{
    const int countBefore = count();
    std::vector<ProjectRow> next = arranged();
    const std::vector<int> places = nextRows(before, nextProjects, next);
    if (change(std::move(next), places)) {
        reportPositions();
    }
    m_specialRows.clear();
    for (int row = 0; row < count(); ++row) {
        if (rows()[at(row)].hasGroupTitle || rows()[at(row)].isActive) {
            m_specialRows.push_back(row);
        }
    }
    if (count() != countBefore) {
        Q_EMIT countChanged();
    }
    Q_EMIT updated();
}

std::vector<ProjectRow> ProjectListModel::arranged() const
{
    const std::vector<int> matches = m_search.matches(m_filterText);
    std::vector<ProjectRow> rows;
    rows.reserve(matches.size());
    std::vector<int> recents;

    const auto append = [&](ProjectRow::Group group, int index) {
        const Project &project = m_projects.at(index);
        const bool isFirst = rows.empty() || rows.back().group != group;
        // The others have a title only to set them off from what stands before them.
        const bool hasTitle = isFirst
            && (group == ProjectRow::Recent || (group == ProjectRow::Others && !rows.empty()));
        rows.push_back({ &project, group, hasTitle, m_activeId == project.id });
    };

    for (const int index : matches) {
        if (m_projects.at(index).isPinned) {
            append(ProjectRow::Pinned, index);
        } else if (m_recentRanks[at(index)] != kGone) {
            recents.push_back(index);
        }
    }
    std::ranges::stable_sort(recents, {}, [this](int index) { return m_recentRanks[at(index)]; });
    for (const int index : recents) {
        append(ProjectRow::Recent, index);
    }
    for (const int index : matches) {
        if (!m_projects.at(index).isPinned && m_recentRanks[at(index)] == kGone) {
            append(ProjectRow::Others, index);
        }
    }
    return rows;
}

/// Where each of the rows stands among the `next` ones, or kGone.
std::vector<int> ProjectListModel::nextRows(const QList<Project> &before,
                                            const std::vector<int> &nextProjects,
                                            const std::vector<ProjectRow> &next) const
{
    std::vector<int> rowOfProject(at(m_projects.size()), kGone);
    for (int row = 0; row < static_cast<int>(next.size()); ++row) {
        rowOfProject[at(next[at(row)].project - m_projects.constData())] = row;
    }
    std::vector<int> places;
    places.reserve(rows().size());
    for (const ProjectRow &row : rows()) {
        const int project = nextProjects[at(row.project - before.constData())];
        places.push_back(project == kGone ? kGone : rowOfProject[at(project)]);
    }
    return places;
}

void ProjectListModel::reportPositions()
{
    if (count() > 0) {
        Q_EMIT dataChanged(index(0), index(count() - 1), { PositionRole, SetSizeRole });
    }
}

} // namespace torvi
