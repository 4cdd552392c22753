// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <sys/resource.h>

namespace torvi {

/// While it lives the process can open no further file descriptor. Do not poll() meanwhile: the
/// same limit bounds the number of descriptors there.
class NoDescriptors final
{
public:
    NoDescriptors()
    {
        EXPECT_EQ(::getrlimit(RLIMIT_NOFILE, &m_before), 0);
        const rlimit none{ .rlim_cur = 0, .rlim_max = m_before.rlim_max };
        EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    }
    NoDescriptors(const NoDescriptors &) = delete;
    NoDescriptors &operator=(const NoDescriptors &) = delete;

    ~NoDescriptors()
    {
        ::setrlimit(RLIMIT_NOFILE, &m_before);
    }

private:
    rlimit m_before{};
};

} // namespace torvi
