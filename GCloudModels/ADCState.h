// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/ADCType.h"
#include "GCloudModels/HashFields.h"

#include <QString>

#include <optional>

namespace torvi {

/// State of the Application Default Credentials file.
struct ADCState
{
    ADCType type = ADCType::none; ///< `none` when there is no usable file
    std::optional<QString> quotaProject; ///< the file's "quota_project_id"
    std::optional<QString> clientEmail; ///< e-mail of the credential, if the file tells it
    bool isValid = false; ///< the file exists and holds a JSON object

    bool operator==(const ADCState &) const = default;
};

[[nodiscard]] inline size_t qHash(const ADCState &state, size_t seed = 0)
{
    return hashFields(seed, state.type, state.quotaProject, state.clientEmail, state.isValid);
}

} // namespace torvi
