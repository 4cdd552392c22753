// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/GCloudConfigReading.h"

#include <QList>
#include <QProcessEnvironment>
#include <QString>

namespace torvi {

/// A variable of the environment that makes gcloud, or code, act on something other than what
/// gcloud's files say and Torvi shows.
struct EnvironmentOverride
{
    QString variable;
    QString value;

    /// One sentence for the user.
    [[nodiscard]] QString description() const;

    /// Those of `environment`. One that agrees with the files is none; one that is to be compared
    /// with a file that cannot be read is left out. No file is read when no variable is set.
    [[nodiscard]] static QList<EnvironmentOverride> all(const GCloudConfigReading &files,
                                                        const QProcessEnvironment &environment
                                                        = QProcessEnvironment::systemEnvironment());

    bool operator==(const EnvironmentOverride &) const = default;
};

} // namespace torvi
