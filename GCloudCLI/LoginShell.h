// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <chrono>
#include <optional>
#include <stop_token>

namespace torvi {

/// Asks the user's shell, which has read the user's start-up files, a question.
/// Thread: any, several calls at once; the thread blocks while the shell runs.
class LoginShell final
{
public:
    /// `shell` is the path of its program. A shell that runs longer than `timeLimit` is ended, with
    /// all that it has started.
    LoginShell(QString shell, std::chrono::milliseconds timeLimit);

    /// What the shell printed on standard output, without white space and line breaks at both ends.
    /// Nothing when it cannot be started, fails, takes too long, prints no UTF-8 or more than an
    /// answer can be, or when `stop` comes first.
    [[nodiscard]] std::optional<QString> answer(const QStringList &arguments,
                                                const std::stop_token &stop) const;

private:
    QString m_shell;
    std::chrono::milliseconds m_timeLimit;
};

} // namespace torvi
