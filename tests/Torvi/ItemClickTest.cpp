// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/ItemClick.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace torvi {

class ItemClickTest : public testing::Test
{
protected:
    static constexpr QPoint kItem{ 1100, 14 };
    ItemClick click;
    ItemClick::Clock::time_point start;
};

TEST_F(ItemClickTest, AnActivationWithoutAPressIsAClickOfItsOwn)
{
    EXPECT_FALSE(click.takeIsSame(kItem, start));
}

TEST_F(ItemClickTest, TheActivationAfterThePressThatClosedIsTheSameClick)
{
    click.closedPopover(kItem, start);

    EXPECT_TRUE(click.takeIsSame(kItem + QPoint(3, -2), start + 5ms));
}

TEST_F(ItemClickTest, APressIsUsedUpByOneActivation)
{
    click.closedPopover(kItem, start);
    ASSERT_TRUE(click.takeIsSame(kItem, start + 5ms));

    EXPECT_FALSE(click.takeIsSame(kItem, start + 10ms));
}

TEST_F(ItemClickTest, ALaterPressThatClosedNothingMakesItAnotherClick)
{
    click.closedPopover(kItem, start);
    click.closedNothing();

    EXPECT_FALSE(click.takeIsSame(kItem, start + 5ms));
}

TEST_F(ItemClickTest, APressFarFromTheItemIsAnotherClick)
{
    click.closedPopover(QPoint(400, 500), start);

    EXPECT_FALSE(click.takeIsSame(kItem, start + 5ms));
}

TEST_F(ItemClickTest, AButtonMayBeHeldDownForAWhile)
{
    click.closedPopover(kItem, start);
    EXPECT_TRUE(click.takeIsSame(kItem, start + 2000ms));

    click.closedPopover(kItem, start);
    EXPECT_FALSE(click.takeIsSame(kItem, start + 2001ms));
}

TEST_F(ItemClickTest, WithoutAPositionOnlyAPromptActivationIsTheSameClick)
{
    click.closedPopover(std::nullopt, start);
    EXPECT_TRUE(click.takeIsSame(kItem, start + 400ms));

    click.closedPopover(std::nullopt, start);
    EXPECT_FALSE(click.takeIsSame(kItem, start + 401ms));
}

} // namespace torvi
