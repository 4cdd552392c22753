// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/RowLayout.h"

#include <gtest/gtest.h>

namespace torvi {

TEST(RowLayoutTest, NoRowsTakeNoRoom)
{
    const RowLayout layout(0, 24, 4, {});

    EXPECT_EQ(layout.height(), 0);
    EXPECT_EQ(layout.rowAt(100), 0);
}

TEST(RowLayoutTest, EqualRowsStandASpacingApart)
{
    const RowLayout layout(3, 24, 4, {});

    EXPECT_EQ(layout.top(0), 0);
    EXPECT_EQ(layout.top(2), 56);
    EXPECT_EQ(layout.height(), 80);
}

TEST(RowLayoutTest, AHigherRowShiftsThoseBelowIt)
{
    const RowLayout layout(5, 24, 4, { { 1, 3 }, { 3, 20 } });

    EXPECT_EQ(layout.top(1), 28);
    EXPECT_EQ(layout.top(2), 59);
    EXPECT_EQ(layout.top(3), 87);
    EXPECT_EQ(layout.top(4), 135);
    EXPECT_EQ(layout.height(), 159);
}

TEST(RowLayoutTest, FindsTheRowAtEachPlace)
{
    const RowLayout layout(5, 24, 4, { { 1, 3 }, { 3, 20 } });

    EXPECT_EQ(layout.rowAt(-5), 0);
    EXPECT_EQ(layout.rowAt(0), 0);
    EXPECT_EQ(layout.rowAt(27.9), 0);
    EXPECT_EQ(layout.rowAt(28), 1);
    EXPECT_EQ(layout.rowAt(134.9), 3);
    EXPECT_EQ(layout.rowAt(135), 4);
    EXPECT_EQ(layout.rowAt(10'000), 4);
}

} // namespace torvi
