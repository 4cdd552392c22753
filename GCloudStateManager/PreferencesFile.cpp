// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/PreferencesFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

constexpr mode_t kUserOnly = S_IRUSR | S_IWUSR;

/// With those above it, each for the user alone as the XDG base directories have it.
void makeFolder(const QString &folder)
{
    if (QFileInfo::exists(folder)) {
        return;
    }
    makeFolder(QFileInfo(folder).path());
    QDir().mkdir(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

bool makePrivate(const FileDescriptor &file, const struct stat &status)
{
    return (status.st_mode & (S_IRWXG | S_IRWXO)) == 0 || ::fchmod(file.get(), kUserOnly) == 0;
}

/// QSettings reads a file again when its size or its time, in milliseconds, is not what it was: not
/// always the case when two processes write at once. What is set here lasts until it has written.
void makeLookChanged(const FileDescriptor &file)
{
    const std::array<timespec, 2> epoch{};
    ::futimens(file.get(), epoch.data());
}

bool waitFor(const FileDescriptor &lock)
{
    int result = 0;
    do {
        result = ::flock(lock.get(), LOCK_EX);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

/// QSettings overlooks that the disk is full when it flushes, and replaces the file by what of it
/// there was room for. So there has to be more than enough before it begins.
bool hasRoom(const QFileInfo &file)
{
    constexpr qint64 kMargin = 1'000'000;
    QTemporaryFile trial(file.exists() ? file.canonicalFilePath() : file.filePath());
    if (!trial.open()) {
        return false;
    }
    const int error = ::posix_fallocate(trial.handle(), 0, kMargin + 2 * file.size());
    return error == 0 || error == EOPNOTSUPP || error == EINVAL; // some file systems cannot tell
}

} // namespace

PreferencesFile::PreferencesFile(QString path)
    : m_path(std::move(path))
    , m_version(currentVersion())
{
}

bool PreferencesFile::isPlain() const
{
    const QFileInfo info(m_path);
    return info.isFile() || !info.exists();
}

FileDescriptor PreferencesFile::beginWriting() const
{
    FileDescriptor lock = lockedFolder();
    if (!hasRoom(QFileInfo(m_path))) {
        return {};
    }
    const FileDescriptor file(::open(QFile::encodeName(m_path).constData(),
                                     O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, kUserOnly));
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)
        || !makePrivate(file, status)) {
        return {};
    }
    if (currentVersion() != m_version) {
        makeLookChanged(file);
    }
    return lock;
}

void PreferencesFile::endWriting()
{
    m_version = currentVersion();
}

std::optional<PreferencesFile::Version> PreferencesFile::currentVersion() const
{
    struct stat status = {};
    if (::stat(QFile::encodeName(m_path).constData(), &status) != 0) {
        return std::nullopt;
    }
    return Version{ status.st_ino, status.st_ctim.tv_sec, status.st_ctim.tv_nsec };
}

/// Where the file system knows no such locks, QSettings' own lock has to do.
FileDescriptor PreferencesFile::lockedFolder() const
{
    const QString folder = QFileInfo(m_path).path();
    makeFolder(folder);
    FileDescriptor lock(
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (waitFor(lock)) {
        // QSettings' own lock, if any, is a killed process's; it might wait for it half a minute.
        QFile::remove(m_path + u".lock"_s);
    }
    return lock;
}

} // namespace torvi
