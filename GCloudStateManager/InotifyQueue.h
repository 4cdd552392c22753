// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/FileDescriptor.h"

#include <cstdint>
#include <optional>
#include <string>
#include <sys/inotify.h>
#include <vector>

namespace torvi {

/// What the kernel tells about a watched file or directory.
struct InotifyEvent
{
    int watch; ///< -1 when it concerns none, as for IN_Q_OVERFLOW
    std::uint32_t mask;
    std::string name; ///< of the directory entry concerned; empty for the watched file itself
};

/// One inotify instance. Never blocks.
class InotifyQueue final
{
public:
    /// The queue stays closed when the system has no inotify instance left.
    InotifyQueue();

    [[nodiscard]] bool isOpen() const
    {
        return m_inotify.isOpen();
    }

    /// Readable while there are events.
    [[nodiscard]] int descriptor() const
    {
        return m_inotify.get();
    }

    /// The watch on `path`, or nothing when it is missing, not allowed or one watch too many. A
    /// file that is watched already keeps its watch.
    [[nodiscard]] std::optional<int> add(const std::string &path, std::uint32_t mask);
    /// Events that wait already stay in the queue; the number of the watch is not used again.
    void remove(int watch);

    /// Takes out the events that have happened so far.
    [[nodiscard]] std::vector<InotifyEvent> takeEvents();

private:
    FileDescriptor m_inotify;
};

} // namespace torvi
