// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace torvi {

/// A copy of the test process that runs `body` and exits with its result: for what must not happen
/// to the test itself. Destruction kills it. No other thread may run at construction.
class ForkedProcess final
{
public:
    explicit ForkedProcess(const std::function<int()> &body)
        : m_pid(::fork())
    {
        if (m_pid == 0) {
            ::_exit(body());
        }
        EXPECT_GT(m_pid, 0);
    }
    ForkedProcess(const ForkedProcess &) = delete;
    ForkedProcess &operator=(const ForkedProcess &) = delete;

    ~ForkedProcess()
    {
        if (m_pid > 0) {
            kill();
        }
    }

    /// Waits for its end; 128 and more when a signal ended it, as in a shell.
    int exitCode()
    {
        int status = 0;
        EXPECT_EQ(::waitpid(m_pid, &status, 0), m_pid);
        m_pid = 0;
        return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    }

    void kill()
    {
        ::kill(m_pid, SIGKILL);
        exitCode();
    }

private:
    pid_t m_pid;
};

/// The exit code of a process that does nothing but `body`.
inline int exitCodeOf(const std::function<int()> &body)
{
    return ForkedProcess(body).exitCode();
}

} // namespace torvi
