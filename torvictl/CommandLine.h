// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/DependencyContainer.h"

#include <qcoro/qcorotask.h>

#include <functional>
#include <variant>

/// torvictl's arguments.
namespace torvi::CommandLine {

/// What a command does; yields the exit code.
using Operation = std::function<QCoro::Task<int>(DependencyContainer &)>;

/// The exit code for arguments that ask for nothing that exists.
inline constexpr int kUsageError = 2;

/// The operation that the arguments ask for; or, when there is nothing left to do because help, the
/// version or a usage error was printed, the exit code.
[[nodiscard]] std::variant<Operation, int> parse(int argc, const char *const *argv);

} // namespace torvi::CommandLine
