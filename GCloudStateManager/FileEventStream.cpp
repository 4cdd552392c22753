// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/FileEventStream.h"

#include <QFile>

#include <array>
#include <pthread.h>
#include <system_error>
#include <utility>

namespace torvi {

namespace {

std::vector<DirectoryEvents> watchedDirectories(const QStringList &paths)
{
    std::vector<DirectoryEvents> directories;
    for (const QString &path : paths) {
        DirectoryEvents directory(QFile::encodeName(path).toStdString());
        if (directory.isWatching()) {
            directories.push_back(std::move(directory));
        }
    }
    return directories;
}

pollfd readable(int descriptor)
{
    return { .fd = descriptor, .events = POLLIN, .revents = 0 };
}

} // namespace

std::unique_ptr<FileEventStream> FileEventStream::create(const QStringList &paths,
                                                         std::chrono::milliseconds latency,
                                                         std::function<void()> handler)
{
    std::vector<DirectoryEvents> directories = watchedDirectories(paths);
    if (directories.empty()) {
        return nullptr;
    }
    try {
        return std::unique_ptr<FileEventStream>(
            new FileEventStream(std::move(directories), latency, std::move(handler)));
    } catch (const std::system_error &) { // no descriptor or no thread left
        return nullptr;
    }
}

FileEventStream::FileEventStream(std::vector<DirectoryEvents> directories,
                                 std::chrono::milliseconds latency, std::function<void()> handler)
    : m_directories(std::move(directories))
    , m_latency(latency)
    , m_handler(std::move(handler))
    , m_stopEvent(m_stop.get_token())
    , m_thread([this] { run(); })
{
}

FileEventStream::~FileEventStream()
{
    m_stop.request_stop();
    m_thread.join();
}

void FileEventStream::run()
{
    ::pthread_setname_np(::pthread_self(), "torvi-files");
    while (waitForChange()) {
        const Deadline deadline = std::chrono::steady_clock::now() + m_latency;
        if (isStoppedBefore(deadline)) {
            return;
        }
        static_cast<void>(takeChanges()); // they belong to this batch
        m_handler();
    }
}

/// False when it was stopped instead.
bool FileEventStream::waitForChange()
{
    std::vector<pollfd> events{ readable(m_stopEvent.descriptor()) };
    for (const DirectoryEvents &directory : m_directories) {
        events.push_back(readable(directory.descriptor()));
    }
    do {
        static_cast<void>(pollUntil(events, kNoDeadline));
        if (events.front().revents != 0) {
            return false;
        }
    } while (!takeChanges());
    return true;
}

bool FileEventStream::isStoppedBefore(Deadline deadline) const
{
    std::array events{ readable(m_stopEvent.descriptor()) };
    return pollUntil(events, deadline);
}

bool FileEventStream::takeChanges()
{
    bool changed = false;
    for (DirectoryEvents &directory : m_directories) {
        changed = directory.takeChanges() || changed;
    }
    return changed;
}

} // namespace torvi
