// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/PipeAccumulator.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace torvi {

TEST(PipeAccumulatorTest, IsEmptyAtFirst)
{
    const PipeAccumulator accumulator;

    EXPECT_EQ(accumulator.data(), QByteArray());
}

TEST(PipeAccumulatorTest, KeepsTheBytesInTheirOrder)
{
    PipeAccumulator accumulator;

    accumulator.append("one ");
    accumulator.append(QByteArrayView("t\0w\xff", 4));
    accumulator.append("");
    accumulator.append("o");

    EXPECT_EQ(accumulator.data(), QByteArray("one t\0w\xffo", 9));
}

TEST(PipeAccumulatorTest, WhatWasReadDoesNotChangeWithLaterBytes)
{
    PipeAccumulator accumulator;
    accumulator.append("early");
    const QByteArray early = accumulator.data();

    accumulator.append(" late");

    EXPECT_EQ(early, "early");
    EXPECT_EQ(accumulator.data(), "early late");
}

TEST(PipeAccumulatorTest, TakesBytesFromSeveralThreadsWhileItIsRead)
{
    PipeAccumulator accumulator;
    constexpr int kAppends = 2000;

    {
        std::vector<std::jthread> threads;
        for (const char *bytes : { "aa", "bb" }) {
            threads.emplace_back([&accumulator, bytes] {
                for (int i = 0; i < kAppends; ++i) {
                    accumulator.append(bytes);
                }
            });
        }
        for (int i = 0; i < kAppends; ++i) {
            EXPECT_EQ(accumulator.data().size() % 2, 0);
        }
    }

    EXPECT_EQ(accumulator.data().count('a'), 2 * kAppends);
    EXPECT_EQ(accumulator.data().count('b'), 2 * kAppends);
}

} // namespace torvi
