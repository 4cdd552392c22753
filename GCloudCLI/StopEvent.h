// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/FileDescriptor.h"

#include <functional>
#include <stop_token>

namespace torvi {

/// Makes a stop request readable on a file descriptor, so that whoever waits in poll() wakes up.
/// Thread: any; the request may come from another one at any time.
class StopEvent final
{
public:
    /// Errors: throws std::system_error when the process is out of descriptors.
    explicit StopEvent(const std::stop_token &stop);
    StopEvent(const StopEvent &) = delete;
    StopEvent &operator=(const StopEvent &) = delete;

    /// Becomes readable with the stop request and stays so.
    [[nodiscard]] int descriptor() const
    {
        return m_event.get();
    }

private:
    FileDescriptor m_event;
    std::stop_callback<std::function<void()>> m_callback;
};

} // namespace torvi
