// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Quick/PopoverPlacement.h"

#include <gtest/gtest.h>

namespace torvi {

class PopoverPlacementTest : public testing::Test
{
protected:
    static constexpr QSize kSize{ 400, 750 };
    static constexpr QRect kScreen{ 0, 0, 1280, 900 };
    static constexpr QRect kBelowPanel{ 0, 28, 1280, 872 };
    static constexpr QRect kAbovePanel{ 0, 0, 1280, 872 };

    static QRect frame(const std::optional<QPoint> &anchor, const QRect &available,
                       const QRect &geometry = kScreen)
    {
        return PopoverPlacement::frame(anchor, { geometry, available }, kSize);
    }
};

TEST_F(PopoverPlacementTest, IsCentredUnderAnItemInAPanelAtTheTop)
{
    EXPECT_EQ(frame(QPoint(600, 14), kBelowPanel), QRect(400, 28, 400, 750));
}

TEST_F(PopoverPlacementTest, IsBoundToTheRightEdge)
{
    EXPECT_EQ(frame(QPoint(1250, 14), kBelowPanel), QRect(880, 28, 400, 750));
}

TEST_F(PopoverPlacementTest, IsBoundToTheLeftEdge)
{
    EXPECT_EQ(frame(QPoint(5, 14), kBelowPanel), QRect(0, 28, 400, 750));
}

TEST_F(PopoverPlacementTest, DoesNotDependOnWhereInTheItemTheClickWas)
{
    EXPECT_EQ(frame(QPoint(600, 0), kBelowPanel).top(), 28);
    EXPECT_EQ(frame(QPoint(600, 27), kBelowPanel).top(), 28);
}

TEST_F(PopoverPlacementTest, StandsAboveAPanelAtTheBottom)
{
    EXPECT_EQ(frame(QPoint(1250, 885), kAbovePanel), QRect(880, 122, 400, 750));
}

TEST_F(PopoverPlacementTest, LeavesTheItemFreeWhereThePanelKeepsNoPlace)
{
    EXPECT_EQ(frame(QPoint(600, 14), kScreen), QRect(400, 28, 400, 750));
    EXPECT_EQ(frame(QPoint(600, 886), kScreen), QRect(400, 122, 400, 750));
}

TEST_F(PopoverPlacementTest, StandsBesideAPanelAtASide)
{
    EXPECT_EQ(frame(QPoint(20, 60), QRect(40, 0, 1240, 900)), QRect(40, 46, 400, 750));
    EXPECT_EQ(frame(QPoint(1260, 880), QRect(0, 0, 1240, 900)), QRect(840, 150, 400, 750));
}

TEST_F(PopoverPlacementTest, StaysOnTheScreenOfTheItem)
{
    const QRect second(1280, 0, 1920, 1080);
    const QRect available(1280, 28, 1920, 1052);

    EXPECT_EQ(frame(QPoint(1300, 14), available, second), QRect(1280, 28, 400, 750));
    EXPECT_EQ(frame(QPoint(3190, 14), available, second), QRect(2800, 28, 400, 750));
}

TEST_F(PopoverPlacementTest, KnowsScreensLeftOfTheFirst)
{
    const QRect left(-1920, -200, 1920, 1080);

    EXPECT_EQ(frame(QPoint(-5, -190), QRect(-1920, -172, 1920, 1052), left),
              QRect(-400, -172, 400, 750));
}

TEST_F(PopoverPlacementTest, IsShorterWhereTheScreenIsLower)
{
    const QRect low(0, 0, 1366, 768);

    EXPECT_EQ(frame(QPoint(700, 14), QRect(0, 28, 1366, 740), low), QRect(500, 28, 400, 740));
    EXPECT_EQ(frame(QPoint(700, 750), QRect(0, 0, 1366, 740), low), QRect(500, 0, 400, 740));
}

TEST_F(PopoverPlacementTest, WithoutAnItemItIsInTheCornerOfThePanel)
{
    EXPECT_EQ(frame(std::nullopt, kBelowPanel), QRect(880, 28, 400, 750));
    EXPECT_EQ(frame(std::nullopt, kScreen), QRect(880, 0, 400, 750));
    EXPECT_EQ(frame(std::nullopt, kAbovePanel), QRect(880, 122, 400, 750));
}

} // namespace torvi
