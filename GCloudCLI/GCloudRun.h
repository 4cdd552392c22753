// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/GCloudResult.h"

#include <QFuture>
#include <QStringList>

#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace torvi {

class BrowserAuthHandler;
class GCloudPathResolving;

/// One run of gcloud on a thread of its own, from the search for the executable to the result. One
/// thread does it all because the child ends with the thread that has started it.
///
/// Thread: the one that made it. Lifetime: destruction ends a gcloud that still runs.
class GCloudRun final
{
public:
    struct Order
    {
        std::shared_ptr<const GCloudPathResolving> pathResolver;
        QStringList arguments; ///< gcloud's, without the executable
        std::vector<std::string> environment; ///< gcloud's, "NAME=value"
        std::shared_ptr<BrowserAuthHandler>
            browserAuthHandler; ///< absent: no address is looked for
        std::chrono::milliseconds drain; ///< from the exit to the result
    };

    /// Errors: throws AppError when no thread can be started.
    explicit GCloudRun(Order order);

    /// The result, or the AppError of a gcloud that was not found, not started, or stopped.
    [[nodiscard]] QFuture<GCloudResult> result() const
    {
        return m_result;
    }

    /// Asks gcloud, or the search for it, to end, and returns at once.
    void requestStop();

    /// Waits for the end of the run: a moment after a stop, else for as long as it takes.
    void join();

private:
    QFuture<GCloudResult> m_result;
    std::jthread m_thread;
};

} // namespace torvi
