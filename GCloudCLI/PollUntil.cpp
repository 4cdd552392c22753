// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/PollUntil.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace torvi {

namespace {

timespec remaining(Deadline deadline)
{
    using namespace std::chrono;
    const auto left = std::max(deadline - steady_clock::now(), steady_clock::duration::zero());
    const auto seconds = duration_cast<std::chrono::seconds>(left);
    return { .tv_sec = seconds.count(), .tv_nsec = nanoseconds(left - seconds).count() };
}

} // namespace

bool pollUntil(std::span<pollfd> events, Deadline deadline)
{
    for (;;) {
        timespec left = deadline == kNoDeadline ? timespec{} : remaining(deadline);
        const int count = ::ppoll(events.data(), events.size(),
                                  deadline == kNoDeadline ? nullptr : &left, nullptr);
        if (count >= 0) {
            return count > 0;
        }
        if (errno != EINTR) {
            throw std::system_error(errno, std::generic_category(), "ppoll");
        }
    }
}

} // namespace torvi
