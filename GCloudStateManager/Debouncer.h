// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <functional>
#include <mutex>

namespace torvi {

/// Lets an event through when at least `interval` has passed since the last one that it let
/// through. The others are dropped, not postponed. Thread: any.
class Debouncer final
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    /// `clock` tells the time, which never goes backwards.
    explicit Debouncer(std::chrono::milliseconds interval,
                       std::function<TimePoint()> clock = &std::chrono::steady_clock::now);

    /// Whether the event that happens now passes; the first one always does.
    [[nodiscard]] bool shouldFire();

private:
    const std::chrono::milliseconds m_interval;
    std::mutex m_lock;
    TimePoint m_lastFireTime = TimePoint::min();
    const std::function<TimePoint()> m_clock;
};

} // namespace torvi
