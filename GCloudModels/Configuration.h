// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/ConfigProperties.h"

namespace torvi {

/// One gcloud named configuration.
struct Configuration
{
    QString name; ///< the identity of the record
    bool isActive = false;
    ConfigProperties properties;

    [[nodiscard]] const QString &id() const
    {
        return name;
    }

    bool operator==(const Configuration &) const = default;
};

[[nodiscard]] inline size_t qHash(const Configuration &configuration, size_t seed = 0)
{
    return hashFields(seed, configuration.name, configuration.isActive, configuration.properties);
}

} // namespace torvi
