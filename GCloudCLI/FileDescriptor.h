// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <unistd.h>
#include <utility>

namespace torvi {

/// Owns a file descriptor and closes it.
class FileDescriptor final
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, kNone))
    {
    }
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        FileDescriptor moved(std::move(other));
        std::swap(m_descriptor, moved.m_descriptor);
        return *this;
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    ~FileDescriptor()
    {
        if (isOpen()) {
            ::close(m_descriptor);
        }
    }

    [[nodiscard]] int get() const
    {
        return m_descriptor;
    }

    [[nodiscard]] bool isOpen() const
    {
        return m_descriptor >= 0;
    }

private:
    static constexpr int kNone = -1;

    int m_descriptor = kNone;
};

} // namespace torvi
