// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/HashFields.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace torvi {

/// One Google Cloud project.
struct Project
{
    QString id; ///< gcloud's "projectId"; the identity of the record
    QString name; ///< display name
    std::optional<QString> projectNumber; ///< digits, kept as text
    bool isPinned = false; ///< filled in from the favourites
    std::optional<QDateTime> lastUsed; ///< left absent: recency is the order of the recent list

    bool operator==(const Project &) const = default;
};

/// The id alone: a pinned and an unpinned copy hash the same without being equal.
[[nodiscard]] inline size_t qHash(const Project &project, size_t seed = 0)
{
    return hashFields(seed, project.id);
}

} // namespace torvi
