// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/InotifyQueue.h"

#include <cstring>
#include <sys/ioctl.h>
#include <unistd.h>

namespace torvi {

namespace {

std::vector<InotifyEvent> parse(const char *position, const char *end)
{
    std::vector<InotifyEvent> events;
    while (position < end) {
        inotify_event event{};
        std::memcpy(&event, position, sizeof(event));
        const char *const name = position + sizeof(event);
        events.push_back({ event.wd, event.mask, std::string(name, ::strnlen(name, event.len)) });
        position = name + event.len;
    }
    return events;
}

} // namespace

InotifyQueue::InotifyQueue()
    : m_inotify(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
}

std::optional<int> InotifyQueue::add(const std::string &path, std::uint32_t mask)
{
    const int watch = ::inotify_add_watch(descriptor(), path.c_str(), mask);
    return watch < 0 ? std::nullopt : std::optional(watch);
}

void InotifyQueue::remove(int watch)
{
    ::inotify_rm_watch(descriptor(), watch); // fails when the file is gone, and the watch with it
}

std::vector<InotifyEvent> InotifyQueue::takeEvents()
{
    // Only what waits now: a loop until the queue is empty might never end.
    int waiting = 0;
    if (::ioctl(descriptor(), FIONREAD, &waiting) != 0 || waiting == 0) {
        return {};
    }
    std::vector<char> buffer(static_cast<std::size_t>(waiting));
    const ssize_t size = ::read(descriptor(), buffer.data(), buffer.size());
    return size > 0 ? parse(buffer.data(), buffer.data() + size) : std::vector<InotifyEvent>{};
}

} // namespace torvi
