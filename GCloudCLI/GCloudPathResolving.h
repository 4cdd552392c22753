// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <stop_token>

namespace torvi {

/// Finds the gcloud executable.
class GCloudPathResolving
{
public:
    virtual ~GCloudPathResolving() = default;

    /// The path of an executable gcloud, searched for anew at each call.
    ///
    /// Thread: any, several at once; may block for long (it can run the user's shell), so not for
    /// the thread of an event loop. A request to `stop` ends a running shell and the search.
    /// Errors: throws AppError::gcloudNotFound(), also when it was stopped.
    [[nodiscard]] virtual QString resolve(std::stop_token stop = {}) const = 0;

protected:
    GCloudPathResolving() = default;
    Q_DISABLE_COPY_MOVE(GCloudPathResolving)
};

} // namespace torvi
