// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/gcloud/StandIn.h"

#include <optional>

namespace torvi {

/// A gcloud configuration directory in which two users and a service account are signed in, made
/// by the real gcloud against the stand-in. Signing in takes seconds, so it is done once; every
/// test works on a copy.
///
/// It holds: config/ (configurations "default", active, of dana@example.com, "labs" of
/// sam@labs.example.com, and the empty "spare"), adc.json (what an application-default sign-in of
/// dana's wrote), key.json (the service account's key), authority.pem and certificate.pem.
class SignedInDirectory
{
public:
    /// Why these tests cannot run on this machine; absent when they can.
    [[nodiscard]] static std::optional<QString> obstacle();

    /// The directory that the environment names, which an earlier test program has made; without
    /// one it is made now and kept until this program ends.
    [[nodiscard]] static const SignedInDirectory &shared();

    /// Makes it anew at `path`; what goes wrong is a test failure.
    static void create(const QString &path);

    [[nodiscard]] QString file(const QString &name) const
    {
        return m_path + u'/' + name;
    }

private:
    explicit SignedInDirectory(QString path)
        : m_path(std::move(path))
    {
    }

    QString m_path;
};

/// An environment in which gcloud and torvictl know of nothing but `home`: its configuration
/// directory is home/config, preferences go to home/preferences.
[[nodiscard]] QProcessEnvironment scratchEnvironment(const QString &home);

/// Lets `user` sign in with the browser that gcloud starts in `environment`.
void signInAs(QProcessEnvironment &environment, const QString &user);

} // namespace torvi
