// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/Pipe.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <system_error>

namespace torvi {

Pipe Pipe::open()
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::system_error(errno, std::generic_category());
    }
    FileDescriptor readingEnd(ends[0]);
    FileDescriptor writingEnd(ends[1]);
    return { .readingEnd = aboveStandardStreams(std::move(readingEnd)),
             .writingEnd = aboveStandardStreams(std::move(writingEnd)) };
}

FileDescriptor aboveStandardStreams(FileDescriptor descriptor)
{
    if (descriptor.get() > STDERR_FILENO) {
        return descriptor;
    }
    FileDescriptor copy(::fcntl(descriptor.get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    if (!copy.isOpen()) {
        throw std::system_error(errno, std::generic_category());
    }
    return copy;
}

} // namespace torvi
