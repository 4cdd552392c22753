// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/ADCState.h"
#include "GCloudModels/ConfigProperties.h"

#include <QStringList>

namespace torvi {

/// Reads gcloud's state from its configuration directory; never writes.
///
/// Thread: any, several calls at once. No call blocks, but for a locked credentials database: 25
/// ms. Errors: each operation but configDirectory() throws AppError for a file that exists and
/// cannot be read, listed, decoded or queried. A missing file is not an error.
class GCloudConfigReading
{
public:
    virtual ~GCloudConfigReading() = default;

    /// Name of the active configuration; "default" when gcloud has stored none.
    [[nodiscard]] virtual QString readActiveConfigName() const = 0;
    /// Properties of the configuration `name`; all absent when it has no file.
    [[nodiscard]] virtual ConfigProperties readConfigProperties(const QString &name) const = 0;
    /// Names of all configurations, ascending.
    [[nodiscard]] virtual QStringList readAllConfigNames() const = 0;
    [[nodiscard]] virtual ADCState readADCState() const = 0;
    /// E-mails of all credentialed accounts, ascending.
    [[nodiscard]] virtual QStringList readAuthenticatedAccounts() const = 0;
    /// The directory that is read; also the one to watch.
    [[nodiscard]] virtual QString configDirectory() const = 0;

protected:
    GCloudConfigReading() = default;
    Q_DISABLE_COPY_MOVE(GCloudConfigReading)
};

} // namespace torvi
