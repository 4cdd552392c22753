// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/ProcessExecutor.h"

#include "GCloudCLI/BrowserAuthHandler.h"
#include "GCloudCLI/GCloudCommands.h"
#include "GCloudCLI/GCloudPathResolving.h"
#include "GCloudCLI/GCloudRun.h"

#include <qcoro/qcorofuture.h>

#include <string>
#include <unistd.h>
#include <utility>

namespace torvi {

namespace {

/// Our environment, byte for byte, without the variable `name`.
std::vector<std::string> environmentWithout(const std::string &name)
{
    std::vector<std::string> result;
    for (char **variable = environ; variable != nullptr && *variable != nullptr; ++variable) {
        std::string entry(*variable);
        if (!entry.starts_with(name + '=')) {
            result.push_back(std::move(entry));
        }
    }
    return result;
}

} // namespace

ProcessExecutor::ProcessExecutor(std::shared_ptr<const GCloudPathResolving> pathResolver,
                                 std::shared_ptr<BrowserAuthHandler> browserAuthHandler,
                                 std::chrono::milliseconds drain)
    : m_pathResolver(std::move(pathResolver))
    , m_browserAuthHandler(std::move(browserAuthHandler))
    , m_drain(drain)
{
}

ProcessExecutor::~ProcessExecutor()
{
    std::vector<std::shared_ptr<GCloudRun>> runs;
    for (const auto &weakRun : m_runs) {
        if (auto run = weakRun.lock()) {
            run->requestStop();
            runs.push_back(std::move(run));
        }
    }
    for (const auto &run : runs) { // all were asked first, so they end side by side
        run->join();
    }
}

QCoro::Task<GCloudResult> ProcessExecutor::execute(GCloudCommand command)
{
    const auto run = start(command);
    const QFuture<GCloudResult> result = run->result();
    co_return co_await result; // the executor may be gone when this resumes
}

std::shared_ptr<GCloudRun> ProcessExecutor::start(const GCloudCommand &command)
{
    auto run = std::make_shared<GCloudRun>(GCloudRun::Order{
        .pathResolver = m_pathResolver,
        .arguments = GCloudCommands::arguments(command),
        .environment = environmentWithout("GOOGLE_APPLICATION_CREDENTIALS"),
        .browserAuthHandler = command.requiresBrowser() ? m_browserAuthHandler : nullptr,
        .drain = m_drain,
    });
    std::erase_if(m_runs, [](const auto &former) { return former.expired(); });
    m_runs.push_back(run);
    return run;
}

} // namespace torvi
