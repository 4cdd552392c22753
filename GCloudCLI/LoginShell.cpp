// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/LoginShell.h"

#include "GCloudCLI/ChildProcess.h"
#include "GCloudCLI/OutputReader.h"
#include "GCloudCLI/StopEvent.h"
#include "GCloudCLI/Utf8.h"
#include "GCloudCLI/WhiteSpace.h"

#include <system_error>
#include <utility>

namespace torvi {

namespace {

/// Far more than greetings and a path take; a start-up file that prints without end stops here.
constexpr qsizetype kLongestAnswer = qsizetype{ 1024 } * 1024;

/// The whole output of a shell that ends well in time.
std::optional<QByteArray> outputOf(ChildProcess &shell, Deadline deadline, const StopEvent &stop)
{
    QByteArray output;
    OutputReader reader(shell, stop, [&output](QByteArrayView chunk) {
        output.append(chunk);
        return output.size() <= kLongestAnswer;
    });
    // No drain: the shell has waited for what it ran, so its output is in the pipe at its exit.
    const auto end = reader.read({ .drain = {}, .exit = deadline });
    if (end != OutputReader::End::exited) {
        shell.end();
        return std::nullopt;
    }
    return shell.exitCode() == 0 ? std::optional(output) : std::nullopt;
}

} // namespace

LoginShell::LoginShell(QString shell, std::chrono::milliseconds timeLimit)
    : m_shell(std::move(shell))
    , m_timeLimit(timeLimit)
{
}

std::optional<QString> LoginShell::answer(const QStringList &arguments,
                                          const std::stop_token &stop) const
try {
    const StopEvent stopEvent(stop);
    const Deadline deadline = std::chrono::steady_clock::now() + m_timeLimit;
    // In a session of its own: an interactive shell takes over the terminal that we run in, or is
    // stopped for trying to.
    auto shell = ChildProcess::start({ .program = m_shell,
                                       .arguments = arguments,
                                       .leads = ChildProcess::Leads::session,
                                       .standardError = ChildProcess::StandardError::discarded });
    const auto output = outputOf(shell, deadline, stopEvent);
    const auto text = output.has_value() ? decodeUtf8(*output) : std::nullopt;
    if (!text.has_value()) {
        return std::nullopt;
    }
    return trimmedWhiteSpaceAndLineBreaks(*text).toString();
} catch (const std::system_error &) {
    return std::nullopt; // one try that failed: the caller has others
}

} // namespace torvi
