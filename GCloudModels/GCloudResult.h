// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/HashFields.h"

#include <QString>

#include <cstdio> // stdout and stderr are macros that name themselves: see them before the fields

namespace torvi {

/// The outcome of one gcloud run. Both texts are whole; a stream that was not UTF-8 is empty.
struct GCloudResult
{
    qint32 exitCode = 0; ///< the exit status, or the number of the signal that ended the child
    QString stdout;
    QString stderr; ///< not empty on most successful runs: gcloud reports there

    [[nodiscard]] bool isSuccess() const
    {
        return exitCode == 0;
    }

    bool operator==(const GCloudResult &) const = default;
};

[[nodiscard]] inline size_t qHash(const GCloudResult &result, size_t seed = 0)
{
    return hashFields(seed, result.exitCode, result.stdout, result.stderr);
}

} // namespace torvi
