// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/StopEvent.h"

#include <cerrno>
#include <sys/eventfd.h>
#include <system_error>

namespace torvi {

namespace {

FileDescriptor makeEvent()
{
    FileDescriptor event(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!event.isOpen()) {
        throw std::system_error(errno, std::generic_category(), "eventfd");
    }
    return event;
}

} // namespace

StopEvent::StopEvent(const std::stop_token &stop)
    : m_event(makeEvent())
    , m_callback(stop, [event = m_event.get()] { ::eventfd_write(event, 1); })
{
}

} // namespace torvi
