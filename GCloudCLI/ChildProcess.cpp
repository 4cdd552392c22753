// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/ChildProcess.h"

#include "GCloudCLI/ForkExec.h"
#include "GCloudCLI/Pidfd.h"
#include "GCloudCLI/Pipe.h"
#include "GCloudCLI/PollUntil.h"
#include "GCloudCLI/ProcessSession.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <system_error>

namespace torvi {

namespace {

/// A session is told to end as by its terminal going away: interactive shells ignore SIGTERM.
int endingSignal(ChildProcess::Leads leads)
{
    return leads == ChildProcess::Leads::session ? SIGHUP : SIGTERM;
}

FileDescriptor openNullDevice()
{
    FileDescriptor device(::open("/dev/null", O_RDWR | O_CLOEXEC));
    if (!device.isOpen()) {
        throw std::system_error(errno, std::generic_category());
    }
    return aboveStandardStreams(std::move(device));
}

std::vector<std::string> encoded(const QString &program, const QStringList &arguments)
{
    std::vector<std::string> result;
    for (const QString &text : QStringList{ program } + arguments) {
        if (text.contains(QChar(u'\0'))) {
            // The system would silently pass on only what comes before it.
            throw std::system_error(EINVAL, std::generic_category());
        }
        result.push_back(QFile::encodeName(text).toStdString());
    }
    return result;
}

} // namespace

ChildProcess ChildProcess::start(const Launch &launch)
{
    const FileDescriptor null = openNullDevice();
    Pipe output = Pipe::open();
    Pipe error = launch.standardError == StandardError::pipe ? Pipe::open() : Pipe();
    const pid_t pid = forkExec({
        .arguments = encoded(launch.program, launch.arguments),
        .environment = launch.environment,
        .streams = { null.get(), output.writingEnd.get(),
                     error.writingEnd.isOpen() ? error.writingEnd.get() : null.get() },
        .newSession = launch.leads == Leads::session,
        .deathSignal = endingSignal(launch.leads),
    });
    return { pid, launch.leads, std::move(output.readingEnd), std::move(error.readingEnd) };
}

ChildProcess::ChildProcess(pid_t pid, Leads leads, FileDescriptor output, FileDescriptor error)
    : m_pid(pid)
    , m_leads(leads)
    , m_output(std::move(output))
    , m_error(std::move(error))
    , m_pidfd(::pidfd_open(pid, 0))
{
    if (!m_pidfd.isOpen()) {
        const int reason = errno;
        kill();
        static_cast<void>(reap());
        throw std::system_error(reason, std::generic_category());
    }
}

ChildProcess::~ChildProcess()
{
    if (m_pidfd.isOpen() && !m_exitCode.has_value()) {
        kill();
        static_cast<void>(reap());
    }
}

qint32 ChildProcess::exitCode()
{
    if (!m_exitCode.has_value()) {
        m_exitCode = reap();
    }
    return *m_exitCode;
}

void ChildProcess::end(std::chrono::milliseconds grace)
{
    if (m_exitCode.has_value()) {
        return;
    }
    ::kill(-m_pid, endingSignal(m_leads));
    ::kill(-m_pid, SIGCONT); // a stopped process acts on no other signal
    std::array exit{ pollfd{ .fd = m_pidfd.get(), .events = POLLIN, .revents = 0 } };
    [[maybe_unused]] const bool exited = pollUntil(exit, std::chrono::steady_clock::now() + grace);
    kill();
    m_exitCode = reap();
}

/// As long as the child is not reaped, its number and that of its group are nobody else's.
void ChildProcess::kill() const
{
    if (m_leads == Leads::session) {
        killSession(m_pid);
    }
    ::kill(-m_pid, SIGKILL);
    ::kill(m_pid, SIGKILL); // it may have moved to another group of its session
}

qint32 ChildProcess::reap() const
{
    siginfo_t info{};
    int result = 0;
    do {
        result = ::waitid(P_PID, static_cast<id_t>(m_pid), &info, WEXITED);
    } while (result != 0 && errno == EINTR);
    // A status that somebody else has reaped is unknown, and unknown must not look like success.
    return result == 0 ? info.si_status : SIGKILL;
}

} // namespace torvi
