// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/GCloudCommand.h"
#include "GCloudModels/GCloudResult.h"

#include <qcoro/qcorotask.h>

namespace torvi {

/// Runs gcloud.
class GCloudExecutor
{
public:
    virtual ~GCloudExecutor() = default;

    /// Runs `command` to its end and yields exit code and output; there is no time-out.
    ///
    /// Thread: called and resumed on the main thread, which it never blocks. Calls are independent.
    /// Errors: throws AppError when gcloud cannot be found or started. A non-zero exit is a result.
    virtual QCoro::Task<GCloudResult> execute(GCloudCommand command) = 0;

protected:
    GCloudExecutor() = default;
    Q_DISABLE_COPY_MOVE(GCloudExecutor)
};

} // namespace torvi
