// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/GCloudPathResolver.h"
#include "GCloudStateManager/DependencyContainer.h"
#include "GCloudStateManager/Rows.h"

#include <QCoreApplication>
#include <QProcessEnvironment>
#include <qcoro/qcorotask.h>

#include <chrono>
#include <optional>

namespace torvi {

/// What Torvi found on this machine, fit to be shown to others: of the environment only names, and
/// neither credentials, nor e-mails, nor project ids.
struct Diagnosis
{
    Q_DECLARE_TR_FUNCTIONS(torvi::Diagnosis)

public:
    Row program; ///< who asks, and its version
    std::optional<GCloudPathResolver::Found> gcloud;
    std::chrono::milliseconds searchTime{};
    std::optional<QString> gcloudVersion; ///< absent when gcloud would not tell
    std::optional<QString> pathSetting;
    QString configDirectory;
    QString preferencesFile;
    QString homeDirectory; ///< shown as "~"
    QProcessEnvironment environment;

    /// Searches for gcloud and asks it for its version, both off the main thread.
    /// Errors: throws AppError when gcloud cannot be started or be waited for.
    static QCoro::Task<Diagnosis> ofThisMachine(Row program, const DependencyContainer &container);

    [[nodiscard]] QList<Row> rows() const;
    /// What would make the search instant; absent when it is.
    [[nodiscard]] std::optional<QString> advice() const;
};

} // namespace torvi
