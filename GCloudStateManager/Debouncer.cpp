// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/Debouncer.h"

#include <utility>

namespace torvi {

Debouncer::Debouncer(std::chrono::milliseconds interval, std::function<TimePoint()> clock)
    : m_interval(interval)
    , m_clock(std::move(clock))
{
}

bool Debouncer::shouldFire()
{
    const std::lock_guard guard(m_lock);
    const TimePoint now = m_clock();
    if (m_lastFireTime > now - m_interval) { // now - m_lastFireTime would overflow the first time
        return false;
    }
    m_lastFireTime = now;
    return true;
}

} // namespace torvi
