// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace torvi {

/// Finds the gcloud executable.
class GCloudPathResolving
{
public:
    virtual ~GCloudPathResolving() = default;

    /// The path of an executable gcloud, searched for anew at each call.
    ///
    /// Thread: any, several at once; may block for long (it can run the user's shell), so never
    /// called on the main thread.
    /// Errors: throws AppError::gcloudNotFound().
    [[nodiscard]] virtual QString resolve() const = 0;

protected:
    GCloudPathResolving() = default;
    Q_DISABLE_COPY_MOVE(GCloudPathResolving)
};

} // namespace torvi
