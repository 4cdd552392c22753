// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

#include <functional>

namespace torvi {

/// How a program ended and what it wrote.
struct Ended
{
    /// -1 when it did not start, or did not end in time and was killed.
    int exitCode = -1;
    bool wasEndedBySignal = false;
    QByteArray output;
    QByteArray errors;
};

/// Whether it ended with `exitCode`; a failed assertion shows everything that it wrote.
[[nodiscard]] testing::AssertionResult exitedWith(int exitCode, const Ended &ended);

/// One run of a program, in a process group of its own. Every wait has a limit that is generous
/// enough for a busy machine; a test that reaches it fails. The destructor kills the program.
class Program
{
public:
    Program(const QString &path, const QStringList &arguments,
            const QProcessEnvironment &environment);
    ~Program();
    Q_DISABLE_COPY_MOVE(Program)

    [[nodiscard]] bool isRunning();
    void write(const QByteArray &input);
    /// Waits until `isReached` is true of standard output so far; false when it never became so.
    [[nodiscard]] bool waitForOutput(const std::function<bool(const QByteArray &)> &isReached);
    /// The same for standard error.
    [[nodiscard]] bool waitForErrors(const std::function<bool(const QByteArray &)> &isReached);
    void closeInput();
    /// To the program alone, as from `kill`.
    void signal(int number);
    /// To the program and its children that share its process group, as a terminal does.
    void signalGroup(int number);
    [[nodiscard]] Ended waitForEnd();

    [[nodiscard]] static Ended run(const QString &path, const QStringList &arguments,
                                   const QProcessEnvironment &environment);

private:
    void collect();

    QProcess m_process;
    QByteArray m_output;
    QByteArray m_errors;
};

} // namespace torvi
