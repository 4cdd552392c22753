// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace torvi {

/// What a run of torvictl left behind.
struct Outcome
{
    int exitCode = -1;
    QByteArray output;
    QByteArray error;
};

/// torvictl as a program, in a home directory of its own with a scripted gcloud.
class TorvictlProgram : public testing::Test
{
protected:
    QTemporaryDir home;
    QProcessEnvironment environment;

    TorvictlProgram();

    /// `lines` of shell become the body of the gcloud that torvictl finds.
    void scriptGcloud(const QByteArray &lines);
    /// Writes a file below gcloud's configuration directory.
    void writeConfig(const QString &name, const QByteArray &content);
    /// Makes a credentials database with these accounts.
    void writeAccounts(const QStringList &emails);
    [[nodiscard]] QString path(const QString &nameBelowHome) const;
    [[nodiscard]] QByteArray read(const QString &nameBelowHome) const;
    /// The argument lists of all runs of the scripted gcloud, a line each.
    [[nodiscard]] QByteArray gcloudRuns() const;

    /// Starts torvictl; the caller ends it.
    std::unique_ptr<QProcess> start(const QStringList &arguments);
    Outcome run(const QStringList &arguments);
    /// Waits until `process` has printed a whole line more, and yields it without its line feed.
    static QByteArray nextLine(QProcess &process);
    static Outcome outcome(QProcess &process);
};

} // namespace torvi
