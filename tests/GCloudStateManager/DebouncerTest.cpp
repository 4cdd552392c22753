// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/Debouncer.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

using namespace std::chrono_literals;

namespace torvi {

class DebouncerTest : public testing::Test
{
protected:
    Debouncer::TimePoint now{ 1000s };
    Debouncer debouncer{ 300ms, [this] { return now; } };
};

TEST_F(DebouncerTest, LetsTheFirstEventThrough)
{
    EXPECT_TRUE(debouncer.shouldFire());
}

TEST_F(DebouncerTest, LetsTheFirstEventThroughWhenTheClockHasJustBegun)
{
    now = Debouncer::TimePoint{};

    EXPECT_TRUE(debouncer.shouldFire());
}

TEST_F(DebouncerTest, DropsAnEventATenthOfASecondLater)
{
    EXPECT_TRUE(debouncer.shouldFire());

    now += 100ms;

    EXPECT_FALSE(debouncer.shouldFire());
}

TEST_F(DebouncerTest, LetsAnEventHalfASecondLaterThrough)
{
    EXPECT_TRUE(debouncer.shouldFire());

    now += 500ms;

    EXPECT_TRUE(debouncer.shouldFire());
}

TEST_F(DebouncerTest, LetsAnEventThroughExactlyAfterTheInterval)
{
    EXPECT_TRUE(debouncer.shouldFire());

    now += 300ms - 1ns;
    EXPECT_FALSE(debouncer.shouldFire());
    now += 1ns;
    EXPECT_TRUE(debouncer.shouldFire());
}

TEST_F(DebouncerTest, CountsFromTheLastEventLetThroughNotFromADroppedOne)
{
    EXPECT_TRUE(debouncer.shouldFire());
    now += 200ms;
    EXPECT_FALSE(debouncer.shouldFire());

    now += 100ms;

    EXPECT_TRUE(debouncer.shouldFire());
}

TEST_F(DebouncerTest, DoesNotMakeUpForADroppedEvent)
{
    EXPECT_TRUE(debouncer.shouldFire());
    now += 100ms;
    EXPECT_FALSE(debouncer.shouldFire());
    now += 300ms;

    EXPECT_TRUE(debouncer.shouldFire());
    EXPECT_FALSE(debouncer.shouldFire());
}

TEST_F(DebouncerTest, LetsOneOfManySimultaneousEventsThrough)
{
    std::atomic<int> fired = 0;
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([this, &fired] {
                for (int event = 0; event < 1000; ++event) {
                    fired += debouncer.shouldFire() ? 1 : 0;
                }
            });
        }
    }

    EXPECT_EQ(fired, 1);
}

TEST(DebouncerClockTest, IsTheMonotonicClockUnlessToldOtherwise)
{
    Debouncer debouncer(1h);

    EXPECT_TRUE(debouncer.shouldFire());
    EXPECT_FALSE(debouncer.shouldFire());
}

} // namespace torvi
