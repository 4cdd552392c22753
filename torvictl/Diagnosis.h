// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/GCloudPathResolver.h"
#include "torvictl/Rows.h"

#include <QProcessEnvironment>

#include <chrono>
#include <optional>

namespace torvi {

/// What Torvi found on this machine, fit to be shown to others: of the environment only names, and
/// neither credentials, nor e-mails, nor project ids.
struct Diagnosis
{
    std::optional<GCloudPathResolver::Found> gcloud;
    std::chrono::milliseconds searchTime{};
    std::optional<QString> gcloudVersion; ///< absent when gcloud would not tell
    std::optional<QString> pathSetting;
    QString configDirectory;
    QString preferencesFile;
    QString homeDirectory; ///< shown as "~"
    QProcessEnvironment environment;

    [[nodiscard]] QList<Row> rows() const;
    /// What would make the search instant; absent when it is.
    [[nodiscard]] std::optional<QString> advice() const;
};

} // namespace torvi
