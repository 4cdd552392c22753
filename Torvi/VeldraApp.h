// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/CommandLine.h"

namespace torvi {

/// The program: one instance a session, with the application delegate in it.
class VeldraApp final
{
public:
    /// Until the application ends. Yields the exit code.
    [[nodiscard]] static int run(int argc, char **argv);
};

} // namespace torvi
