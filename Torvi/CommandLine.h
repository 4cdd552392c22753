// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <variant>

/// torvi's arguments.
namespace torvi::CommandLine {

/// What a start asks for; a program that runs already carries it out.
enum class Request {
    start, ///< run, and when it runs already, open the popover
    toggle, ///< open or close the popover
    manager, ///< open the manager window
    quit,
};

struct Options
{
    Request request = Request::start;
    bool isTitleLive = false;
    bool wantsDiagnosis = false; ///< in place of the request

    bool operator==(const Options &) const = default;
};

/// The exit code for arguments that ask for nothing that exists.
inline constexpr int kUsageError = 2;

/// What the arguments ask for; or, when there is nothing left to do because help, the version or a
/// usage error was printed, the exit code.
[[nodiscard]] std::variant<Options, int> parse(int argc, const char *const *argv);

} // namespace torvi::CommandLine
