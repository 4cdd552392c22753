// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/GCloudConfigReading.h"

#include <optional>

namespace torvi {

/// The reader of the real configuration directory. Holds no state but the directory's path; every
/// call opens, reads and closes its files.
///
/// Nothing but regular files is opened, and of those nothing longer than
/// GCloudFile::kMaximumSize is read; what is not read counts as unreadable.
class GCloudConfigReader final : public GCloudConfigReading
{
public:
    /// `configDirectory` is used as it stands. Absent means gcloud's own choice: $CLOUDSDK_CONFIG
    /// as it stands, even when it is empty, or "~/.config/gcloud" when it is not set.
    explicit GCloudConfigReader(std::optional<QString> configDirectory = std::nullopt);

    [[nodiscard]] QString readActiveConfigName() const override;
    [[nodiscard]] ConfigProperties readConfigProperties(const QString &name) const override;
    [[nodiscard]] QStringList readAllConfigNames() const override;
    [[nodiscard]] ADCState readADCState() const override;
    [[nodiscard]] QStringList readAuthenticatedAccounts() const override;
    [[nodiscard]] QString configDirectory() const override;

private:
    [[nodiscard]] QString path(const QString &name) const;

    QString m_configDirectory;
};

} // namespace torvi
