// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/FileDescriptor.h"

#include <QStringList>

#include <chrono>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace torvi {

/// One child process. Its standard input is the null device and its output goes to pipes that stay
/// open after its exit: what a child printed last is still to be read then, which is why QProcess,
/// closing its pipes at the exit and bound to an event loop, does not serve here.
///
/// The child inherits its three standard streams and nothing else, starts with no signal ignored or
/// blocked, and is told to end when Torvi is killed. The kernel ties that to the starting thread:
/// the thread that called start() must live until the child has ended.
/// Thread: one at a time. Lifetime: a child that still runs is killed by the destructor.
class ChildProcess final
{
public:
    /// What the child is put in charge of, and so what end() reaches besides the child.
    enum class Leads {
        processGroup,
        session, ///< without a terminal, so that an interactive shell cannot fight over ours
    };

    enum class StandardError { pipe, discarded };

    struct Launch
    {
        QString program; ///< a path, used as it stands; never searched for
        QStringList arguments{}; ///< without the program
        std::optional<std::vector<std::string>> environment{}; ///< "NAME=value"; absent: our own
        Leads leads = Leads::processGroup;
        StandardError standardError = StandardError::pipe;
    };

    /// Errors: throws std::system_error, whose code says why the program could not be run.
    [[nodiscard]] static ChildProcess start(const Launch &launch);

    ChildProcess(ChildProcess &&) noexcept = default;
    ChildProcess &operator=(ChildProcess &&) = delete;
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;
    ~ChildProcess();

    /// The reading ends of the pipes, -1 for a discarded stream.
    [[nodiscard]] int standardOutput() const
    {
        return m_output.get();
    }
    [[nodiscard]] int standardError() const
    {
        return m_error.get();
    }

    /// Becomes readable when the child exits.
    [[nodiscard]] int exitEvent() const
    {
        return m_pidfd.get();
    }

    /// Waits for the exit. The exit status, or the number of the signal that ended the child.
    qint32 exitCode();

    /// Asks the child and what it leads to end; whatever is left of them when the child has exited
    /// or `grace` has passed is killed. Returns when the child is gone.
    void end(std::chrono::milliseconds grace = std::chrono::seconds(1));

private:
    ChildProcess(pid_t pid, Leads leads, FileDescriptor output, FileDescriptor error);

    void kill() const;
    [[nodiscard]] qint32 reap() const;

    pid_t m_pid;
    Leads m_leads;
    FileDescriptor m_output;
    FileDescriptor m_error;
    FileDescriptor m_pidfd;
    std::optional<qint32> m_exitCode;
};

} // namespace torvi
