// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/SearchPlaces.h"

#include "GCloudCLI/HomeDirectory.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

/// Where the SDK's own installer, users who unpack it by hand, and package managers put it.
QStringList wellKnownLocations()
{
    return {
        u"~/google-cloud-sdk/bin/gcloud"_s,
        u"~/Documents/google-cloud-sdk/bin/gcloud"_s,
        u"~/Downloads/google-cloud-sdk/bin/gcloud"_s,
        u"~/Desktop/google-cloud-sdk/bin/gcloud"_s,
        u"/usr/local/google-cloud-sdk/bin/gcloud"_s,
        u"/opt/google-cloud-sdk/bin/gcloud"_s,
        u"/opt/homebrew/bin/gcloud"_s,
        u"/opt/homebrew/share/google-cloud-sdk/bin/gcloud"_s,
        u"/usr/local/bin/gcloud"_s,
        u"/usr/local/Caskroom/google-cloud-sdk/latest/google-cloud-sdk/bin/gcloud"_s,
        u"/snap/google-cloud-cli/current/bin/gcloud"_s,
    };
}

QString loginShell()
{
    return qEnvironmentVariableIsSet("SHELL") ? QFile::decodeName(qgetenv("SHELL")) : u"/bin/zsh"_s;
}

} // namespace

SearchPlaces SearchPlaces::ofThisUser()
{
    return {
        .homeDirectory = torvi::homeDirectory(),
        .wellKnown = wellKnownLocations(),
        .startUpFiles
        = { u".zshrc"_s, u".zprofile"_s, u".bash_profile"_s, u".bashrc"_s, u".profile"_s },
        .shell = loginShell(),
    };
}

} // namespace torvi
