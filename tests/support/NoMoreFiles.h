// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <gtest/gtest.h>

#include <sys/resource.h>

namespace torvi {

/// While it lives, this process can open no file, as if it had too many open: the failure to read
/// an existing file that not even root is spared.
class NoMoreFiles final
{
public:
    NoMoreFiles()
    {
        EXPECT_EQ(::getrlimit(RLIMIT_NOFILE, &m_original), 0);
        const rlimit none{ 0, m_original.rlim_max };
        EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    }

    ~NoMoreFiles()
    {
        ::setrlimit(RLIMIT_NOFILE, &m_original);
    }

private:
    Q_DISABLE_COPY_MOVE(NoMoreFiles)

    rlimit m_original{};
};

} // namespace torvi
