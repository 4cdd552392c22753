// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/HashFields.h"

#include <QString>

#include <optional>

namespace torvi {

/// The properties of one named configuration that Torvi cares about; absent when not set.
/// An empty text is a property that is set to nothing, which gcloud can store too.
struct ConfigProperties
{
    std::optional<QString> project; ///< core/project
    std::optional<QString> account; ///< core/account
    std::optional<QString> region; ///< compute/region
    std::optional<QString> zone; ///< compute/zone
    std::optional<QString> impersonateServiceAccount; ///< auth/impersonate_service_account

    bool operator==(const ConfigProperties &) const = default;
};

[[nodiscard]] inline size_t qHash(const ConfigProperties &properties, size_t seed = 0)
{
    return hashFields(seed, properties.project, properties.account, properties.region,
                      properties.zone, properties.impersonateServiceAccount);
}

} // namespace torvi
