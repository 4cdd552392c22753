// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudPathResolver.h"

#include "GCloudCLI/GCloudFile.h"
#include "GCloudCLI/HomeDirectory.h"
#include "GCloudCLI/LoginShell.h"
#include "GCloudCLI/StartUpLine.h"
#include "GCloudCLI/Utf8.h"
#include "GCloudCLI/WhiteSpace.h"
#include "GCloudModels/AppError.h"

#include <QFile>

#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

/// A folder may be "executable" too, but runs nothing.
bool isExecutable(const QString &path)
{
    const auto kind = GCloudFile::fileKind(path);
    return kind != GCloudFile::FileKind::missing && kind != GCloudFile::FileKind::directory
        && ::access(QFile::encodeName(path).constData(), X_OK) == 0;
}

/// The first executable that a line of `text` leads to.
std::optional<QString> gcloudNamedIn(const QString &text, const QString &home)
{
    for (const QStringView line : lines(text)) {
        const auto folder = StartUpLine::sdkParentFolder(line);
        if (!folder.has_value()) {
            continue;
        }
        const QString candidate = expandTilde(*folder + u"/google-cloud-sdk/bin/gcloud"_s, home);
        if (isExecutable(candidate)) {
            return candidate;
        }
    }
    return std::nullopt;
}

} // namespace

GCloudPathResolver::GCloudPathResolver(std::optional<QString> customPath, SearchPlaces places)
    : m_customPath(std::move(customPath))
    , m_places(std::move(places))
{
}

QString GCloudPathResolver::resolve(std::stop_token stop) const
{
    if (auto found = find(stop)) {
        return std::move(found->path);
    }
    throw AppError::gcloudNotFound();
}

std::optional<GCloudPathResolver::Found> GCloudPathResolver::find(const std::stop_token &stop) const
{
    if (const auto path = fromSetting()) {
        return Found{ *path, Stage::setting };
    }
    if (const auto path = fromWellKnownLocations()) {
        return Found{ *path, Stage::wellKnownLocation };
    }
    if (const auto path = fromStartUpFiles()) {
        return Found{ *path, Stage::startUpFile };
    }
    if (const auto path = fromLoginShell(stop)) {
        return Found{ *path, Stage::loginShell };
    }
    return std::nullopt;
}

std::optional<QString> GCloudPathResolver::fromSetting() const
{
    return m_customPath.has_value() && isExecutable(*m_customPath) ? m_customPath : std::nullopt;
}

std::optional<QString> GCloudPathResolver::fromWellKnownLocations() const
{
    for (const QString &location : m_places.wellKnown) {
        const QString path = expandTilde(location, m_places.homeDirectory);
        if (isExecutable(path)) {
            return path;
        }
    }
    return std::nullopt;
}

std::optional<QString> GCloudPathResolver::fromStartUpFiles() const
{
    for (const QString &name : m_places.startUpFiles) {
        const auto bytes = GCloudFile::readFile(m_places.homeDirectory + u'/' + name);
        if (!bytes.has_value() || !StartUpLine::canBeIn(*bytes)) {
            continue;
        }
        const auto text = decodeUtf8(*bytes);
        auto path = text.has_value() ? gcloudNamedIn(*text, m_places.homeDirectory) : std::nullopt;
        if (path.has_value()) {
            return path;
        }
    }
    return std::nullopt;
}

std::optional<QString> GCloudPathResolver::fromLoginShell(const std::stop_token &stop) const
{
    // Which of its start-up files a shell reads depends on being interactive and a login shell.
    const QList<QStringList> tries{
        { u"-i"_s, u"-c"_s, u"which gcloud"_s },
        { u"-l"_s, u"-i"_s, u"-c"_s, u"which gcloud"_s },
        { u"-l"_s, u"-c"_s, u"which gcloud"_s },
    };
    const LoginShell shell(m_places.shell, m_places.shellTimeLimit);
    for (const QStringList &arguments : tries) {
        auto path = stop.stop_requested() ? std::nullopt : shell.answer(arguments, stop);
        if (path.has_value() && isExecutable(*path)) {
            return path;
        }
    }
    return std::nullopt;
}

} // namespace torvi
