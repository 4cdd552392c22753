// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "VeldraUI/AuthState.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <utility>
#include <vector>

namespace torvi {

/// Time that passes when the test says so. Copies handed out as AuthState::Delay share it.
class FakeDelay final
{
public:
    [[nodiscard]] AuthState::Delay delay()
    {
        return [this](std::chrono::milliseconds time, std::function<void()> call) {
            m_calls.emplace_back(m_now + time, std::move(call));
        };
    }

    /// Makes the calls that become due, in the order of their times.
    void advance(std::chrono::milliseconds time)
    {
        m_now += time;
        for (;;) {
            const auto next = std::ranges::min_element(m_calls, {}, &Call::first);
            if (next == m_calls.end() || next->first > m_now) {
                return;
            }
            const auto call = std::move(next->second);
            m_calls.erase(next);
            call();
        }
    }

private:
    using Call = std::pair<std::chrono::milliseconds, std::function<void()>>;

    std::chrono::milliseconds m_now{ 0 };
    std::vector<Call> m_calls;
};

} // namespace torvi
