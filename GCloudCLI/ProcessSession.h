// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <sys/types.h>

namespace torvi {

/// Kills every process of a session. An interactive shell puts its jobs into process groups of
/// their own, which a signal to the leader's group does not reach.
///
/// `leader` must not have been reaped yet, or its number may name another session by now.
void killSession(pid_t leader);

} // namespace torvi
