// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/ClickPosition.h"

#include <gtest/gtest.h>

namespace torvi {

TEST(ClickPositionTest, TakesAClaimNearThePointer)
{
    EXPECT_EQ(clickPosition({ 1150, 20 }, { 1100, 10 }), QPoint(1150, 20));
    EXPECT_EQ(clickPosition({ 1164, 74 }, { 1100, 10 }), QPoint(1164, 74));
}

TEST(ClickPositionTest, TakesThePointerWhereTheClaimIsAFixedPlace)
{
    EXPECT_EQ(clickPosition({ 0, 28 }, { 1100, 10 }), QPoint(1100, 10));
}

TEST(ClickPositionTest, TakesThePointerWhereTheClaimIsInsideOfThePanel)
{
    EXPECT_EQ(clickPosition({ 9, 14 }, { 1100, 880 }), QPoint(1100, 880));
    EXPECT_EQ(clickPosition({ 1100, 14 }, { 1100, 880 }), QPoint(1100, 880));
}

} // namespace torvi
