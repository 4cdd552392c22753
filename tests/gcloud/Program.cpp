// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/Program.h"

#include <QDeadlineTimer>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace torvi {

namespace {

constexpr std::chrono::milliseconds kLimit = 60s;

} // namespace

testing::AssertionResult exitedWith(int exitCode, const Ended &ended)
{
    if (ended.exitCode == exitCode && !ended.wasEndedBySignal) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure()
        << (ended.wasEndedBySignal ? "ended by signal " : "ended with exit code ") << ended.exitCode
        << "\nstandard output: " << ended.output.toStdString()
        << "\nstandard error: " << ended.errors.toStdString();
}

Program::Program(const QString &path, const QStringList &arguments,
                 const QProcessEnvironment &environment)
{
    m_process.setProcessEnvironment(environment);
    m_process.setWorkingDirectory(environment.value(u"HOME"_s));
    m_process.setChildProcessModifier([] {
        setpgid(0, 0);
        prctl(PR_SET_PDEATHSIG, SIGKILL); // nothing outlives a test that is killed
    });
    m_process.start(path, arguments);
    m_process.waitForStarted(-1);
}

Program::~Program()
{
    if (m_process.state() != QProcess::NotRunning) {
        signalGroup(SIGKILL);
        m_process.waitForFinished(-1);
    }
}

bool Program::isRunning()
{
    return !m_process.waitForFinished(0) && m_process.state() != QProcess::NotRunning;
}

void Program::write(const QByteArray &input)
{
    m_process.write(input);
    m_process.waitForBytesWritten(-1);
}

void Program::collect()
{
    m_output += m_process.readAllStandardOutput();
    m_errors += m_process.readAllStandardError();
}

bool Program::waitForOutput(const std::function<bool(const QByteArray &)> &isReached)
{
    const QDeadlineTimer limit(kLimit);
    m_process.setReadChannel(QProcess::StandardOutput);
    for (;;) {
        collect();
        if (isReached(m_output)) {
            return true;
        }
        if (!m_process.waitForReadyRead(static_cast<int>(limit.remainingTime()))) {
            collect();
            return isReached(m_output);
        }
    }
}

bool Program::waitForErrors(const std::function<bool(const QByteArray &)> &isReached)
{
    const QDeadlineTimer limit(kLimit);
    m_process.setReadChannel(QProcess::StandardError);
    for (;;) {
        collect();
        if (isReached(m_errors)) {
            return true;
        }
        if (!m_process.waitForReadyRead(static_cast<int>(limit.remainingTime()))) {
            collect();
            return isReached(m_errors);
        }
    }
}

void Program::closeInput()
{
    m_process.closeWriteChannel();
}

void Program::signal(int number)
{
    ::kill(static_cast<pid_t>(m_process.processId()), number);
}

void Program::signalGroup(int number)
{
    ::kill(-static_cast<pid_t>(m_process.processId()), number);
}

Ended Program::waitForEnd()
{
    m_process.waitForFinished(static_cast<int>(kLimit.count()));
    collect();
    if (m_process.state() != QProcess::NotRunning || m_process.error() == QProcess::FailedToStart) {
        return { -1, false, m_output, m_errors + "\n(it did not start, or not end in time)" };
    }
    return { m_process.exitCode(), m_process.exitStatus() == QProcess::CrashExit, m_output,
             m_errors };
}

Ended Program::run(const QString &path, const QStringList &arguments,
                   const QProcessEnvironment &environment)
{
    Program program(path, arguments, environment);
    program.closeInput();
    return program.waitForEnd();
}

} // namespace torvi
