// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace torvi {

/// How a child is to be set up between fork and exec.
struct ForkExec
{
    std::vector<std::string> arguments; ///< the path of the program first
    std::optional<std::vector<std::string>> environment; ///< "NAME=value"; absent: our own
    std::array<int, 3> streams{}; ///< descriptors, all above 2, that become 0, 1 and 2
    bool newSession = false; ///< else a process group of its own
    int deathSignal = 0; ///< sent to the child when the calling thread ends
};

/// Starts the program and returns once it runs.
/// Errors: throws std::system_error with the error number of what failed in parent or child.
[[nodiscard]] pid_t forkExec(ForkExec order);

} // namespace torvi
