// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/gcloud/Printers.h"
#include "tests/gcloud/SignedInDirectory.h"

#include <QTemporaryDir>

#include <optional>

namespace torvi {

/// torvictl and the real gcloud on one configuration directory, a copy of SignedInDirectory's, with
/// the stand-in for the internet. Skips where gcloud, python3 or openssl is missing. After each
/// test no gcloud may be left behind, and nobody may have asked for what the stand-in lacks.
///
/// gcloud is a script in scratch/bin, first in the search path, that runs the real one on nothing
/// but the scratch directory: a torvictl that loses the environment on the way must not reach the
/// user's own accounts.
class GCloudTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    Ended torvictl(const QStringList &arguments);
    std::unique_ptr<Program> startTorvictl(const QStringList &arguments);
    /// What a user does in a terminal.
    Ended gcloud(const QStringList &arguments);

    /// What torvictl prints with --json.
    QJsonObject status();
    QJsonArray list(const QStringList &arguments);
    /// A member of the current context, or null.
    QJsonValue active(const QString &member);

    /// What gcloud prints with --format=json.
    QJsonDocument ask(const QStringList &arguments);
    /// The configuration that gcloud says is active; empty when none is.
    QString activeConfiguration();
    /// A property of the active configuration as gcloud reports it; null when unset.
    QJsonValue property(const QString &section, const QString &name);
    /// The ADC file; absent when there is none.
    std::optional<QJsonObject> adcFile();

    /// Application Default Credentials as dana's sign-in left them, with that quota project.
    void haveUserADC(const QString &quotaProject = QStringLiteral("orchard-prod-5150"));
    /// The service account's key as Application Default Credentials.
    void haveKeyADC();
    /// gcloud has to ask for a new access token before it does anything else.
    void forgetAccessTokens();

    /// The arguments of each run of gcloud so far, separated by blanks.
    QStringList runs();

    /// A shell script in scratch/bin; yields its path.
    QString haveProgram(const QString &name, const QByteArray &script);

    QString configFile(const QString &name) const;
    void writeFile(const QString &path, const QByteArray &contents);
    QByteArray readFile(const QString &path);

    QTemporaryDir scratch;
    QString gcloudPath;
    QProcessEnvironment environment;
    std::unique_ptr<StandIn> google;
};

/// The sign-in addresses in what torvictl or gcloud wrote.
[[nodiscard]] QStringList signInAddresses(const QByteArray &text);

} // namespace torvi
