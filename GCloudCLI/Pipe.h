// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/FileDescriptor.h"

namespace torvi {

/// Both ends of a new pipe; closed on exec, and never one of the standard streams, so that dup2()
/// onto these always makes an inheritable copy.
struct Pipe
{
    FileDescriptor readingEnd;
    FileDescriptor writingEnd;

    /// Errors: throws std::system_error.
    [[nodiscard]] static Pipe open();
};

/// `descriptor`, or a copy of it above the standard streams. Errors: throws std::system_error.
[[nodiscard]] FileDescriptor aboveStandardStreams(FileDescriptor descriptor);

} // namespace torvi
