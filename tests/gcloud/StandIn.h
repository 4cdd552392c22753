// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/gcloud/Program.h"

#include <QJsonObject>

#include <memory>

namespace torvi {

/// The stand-in for the Google APIs, running; see api_standin.py for what it can be told.
class StandIn
{
public:
    /// `certificate` is the PEM file with its certificate and key. Ready when constructed;
    /// isRunning() is false when it could not start.
    explicit StandIn(const QString &certificate);

    [[nodiscard]] bool isRunning() const
    {
        return m_port != 0;
    }

    /// What a program needs in its environment to take it for the internet.
    void enter(QProcessEnvironment &environment, const QString &certificateAuthority) const;

    void goDown();
    /// Requests whose host and path match `pattern` are refused with the HTTP status from now on.
    void refuse(const QString &pattern, int status);
    /// Such requests wait for their answer until release().
    void hold(const QString &pattern);
    /// Returns when a request is being held; false when none came.
    [[nodiscard]] bool awaitHeld();
    void release();

    /// What it was asked, each as "METHOD host/path".
    [[nodiscard]] QStringList requests();
    /// On whose behalf the requests for `path` were made.
    [[nodiscard]] QStringList callers(const QString &path);
    /// Requests that it does not know an answer to.
    [[nodiscard]] QStringList unknownRequests();

private:
    QJsonObject ask(const QJsonObject &order);
    QJsonArray log();

    std::unique_ptr<Program> m_program;
    qsizetype m_linesRead = 0;
    int m_port = 0;
};

} // namespace torvi
