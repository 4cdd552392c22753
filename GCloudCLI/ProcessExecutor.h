// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/GCloudExecutor.h"

#include <chrono>
#include <memory>
#include <vector>

namespace torvi {

class BrowserAuthHandler;
class GCloudPathResolving;
class GCloudRun;

/// Runs gcloud as a child process; concurrent calls are independent.
///
/// gcloud has our environment minus GOOGLE_APPLICATION_CREDENTIALS, which would have it use other
/// credentials than those that Torvi shows, and no standard input, so that no question of it can
/// block. Its result comes a fixed short time after its exit, by when what it printed last has
/// arrived; whoever else holds its pipes is not waited for.
///
/// Thread: that of an event loop, which is never blocked: search, start and reading happen on a
/// thread for each run.
/// Lifetime: destruction ends what still runs, which takes about a second at most, and lets the
/// pending calls throw an AppError; these do not need the executor any more.
class ProcessExecutor final : public GCloudExecutor
{
public:
    /// `browserAuthHandler` is told each sign-in address that a command with a browser sign-in
    /// prints; without one nobody looks for it. `drain` is the time from exit to result.
    explicit ProcessExecutor(std::shared_ptr<const GCloudPathResolving> pathResolver,
                             std::shared_ptr<BrowserAuthHandler> browserAuthHandler = nullptr,
                             std::chrono::milliseconds drain = std::chrono::milliseconds(100));
    ~ProcessExecutor() override;

    QCoro::Task<GCloudResult> execute(GCloudCommand command) override;

private:
    [[nodiscard]] std::shared_ptr<GCloudRun> start(const GCloudCommand &command);

    std::shared_ptr<const GCloudPathResolving> m_pathResolver;
    std::shared_ptr<BrowserAuthHandler> m_browserAuthHandler;
    std::chrono::milliseconds m_drain;
    std::vector<std::weak_ptr<GCloudRun>> m_runs; // owned by the pending calls
};

} // namespace torvi
