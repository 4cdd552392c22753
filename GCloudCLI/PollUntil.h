// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <poll.h>
#include <span>

namespace torvi {

using Deadline = std::chrono::steady_clock::time_point;

inline constexpr Deadline kNoDeadline = Deadline::max();

/// Waits until one of `events` has happened, which their `revents` then tell; an entry whose
/// descriptor is negative is left out. False when `deadline` came first.
[[nodiscard]] bool pollUntil(std::span<pollfd> events, Deadline deadline);

} // namespace torvi
