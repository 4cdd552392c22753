// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <chrono>

namespace torvi {

/// Where gcloud is looked for.
struct SearchPlaces
{
    QString homeDirectory;
    QStringList wellKnown; ///< in this order; a leading "~" stands for the home directory
    QStringList startUpFiles; ///< of shells, in this order; names in the home directory
    QString shell; ///< a path, asked last
    std::chrono::milliseconds shellTimeLimit{ 10'000 }; ///< for each of the tries

    /// The user's own places: home directory and shell from the environment, the fixed lists.
    [[nodiscard]] static SearchPlaces ofThisUser();
};

} // namespace torvi
