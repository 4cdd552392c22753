// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudFile.h"

#include <QFile>
#include <QScopeGuard>

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace torvi::GCloudFile {

namespace {

/// Whether a failed look-up says that nothing is there; a refusal (EACCES, EIO) does not say so.
bool isAbsence(int error)
{
    return error == ENOENT || error == ENOTDIR || error == ELOOP || error == ENAMETOOLONG;
}

/// The system would take a path only up to its first NUL, and so find another file.
bool isNameable(const QString &path)
{
    return !path.contains(QChar(u'\0'));
}

/// All that is left to read; nothing on an error and past the limit.
std::optional<QByteArray> readDescriptor(int descriptor, qint64 expectedSize)
{
    QByteArray bytes(expectedSize + 1, Qt::Uninitialized);
    qint64 size = 0;
    while (size <= kMaximumSize) {
        const qint64 count
            = ::read(descriptor, bytes.data() + size, static_cast<size_t>(bytes.size() - size));
        if (count == 0) {
            bytes.truncate(size);
            return bytes;
        }
        if (count < 0 && errno != EINTR) {
            return std::nullopt;
        }
        size += std::max<qint64>(count, 0);
        if (size == bytes.size()) { // it grows while it is read
            bytes.resize(2 * size + 4096);
        }
    }
    return std::nullopt;
}

} // namespace

FileKind fileKind(const QString &path)
{
    struct stat status
    {
    };
    if (!isNameable(path)) {
        return FileKind::missing;
    }
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
        return isAbsence(errno) ? FileKind::missing : FileKind::special;
    }
    if (S_ISREG(status.st_mode)) {
        return FileKind::regular;
    }
    return S_ISDIR(status.st_mode) ? FileKind::directory : FileKind::special;
}

std::optional<QByteArray> readFile(const QString &path)
{
    if (fileKind(path) != FileKind::regular) {
        return std::nullopt;
    }
    // What was a regular file a moment ago may be a FIFO by now: never wait for its writer.
    const int descriptor
        = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0) {
        return std::nullopt;
    }
    const auto close = qScopeGuard([descriptor] { ::close(descriptor); });
    struct stat status
    {
    };
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)
        || status.st_size > kMaximumSize) {
        return std::nullopt;
    }
    return readDescriptor(descriptor, status.st_size);
}

std::optional<QStringList> entryNames(const QString &path)
{
    if (!isNameable(path)) {
        return std::nullopt;
    }
    DIR *directory = ::opendir(QFile::encodeName(path).constData());
    if (directory == nullptr) {
        return std::nullopt;
    }
    const auto close = qScopeGuard([directory] { ::closedir(directory); });
    QStringList names;
    while (true) {
        errno = 0; // it alone tells an error from the end
        const dirent *entry = ::readdir(directory);
        if (entry == nullptr) {
            return errno == 0 ? std::optional(names) : std::nullopt;
        }
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") {
            names.append(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
        }
    }
}

} // namespace torvi::GCloudFile
