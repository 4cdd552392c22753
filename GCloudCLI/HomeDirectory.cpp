// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/HomeDirectory.h"

#include <QFile>

#include <pwd.h>
#include <unistd.h>
#include <vector>

namespace torvi {

namespace {

QString homeFromUserDatabase()
{
    const long size = ::sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> buffer(size > 0 ? static_cast<std::size_t>(size) : 16384);
    passwd entry{};
    passwd *found = nullptr;
    ::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found);
    return found != nullptr ? QFile::decodeName(found->pw_dir) : QString();
}

} // namespace

QString homeDirectory()
{
    const QByteArray home = qgetenv("HOME");
    return home.isEmpty() ? homeFromUserDatabase() : QFile::decodeName(home);
}

QString expandTilde(const QString &path, const QString &home)
{
    const bool namesHome = path.startsWith(u'~') && (path.size() == 1 || path.at(1) == u'/');
    return namesHome ? home + path.sliced(1) : path;
}

} // namespace torvi
