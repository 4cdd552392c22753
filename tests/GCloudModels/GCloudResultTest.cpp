// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudModels/GCloudResult.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

TEST(GCloudResultTest, ExitCodeOneWithoutOutputIsNoSuccess)
{
    EXPECT_FALSE((GCloudResult{ 1, QString(), QString() }.isSuccess()));
}

TEST(GCloudResultTest, ExitCodeZeroWithStandardErrorIsASuccess)
{
    EXPECT_TRUE((GCloudResult{ 0, QString(), u"Updated property."_s }.isSuccess()));
}

TEST(GCloudResultTest, ComparesAllThreeFields)
{
    const GCloudResult result{ 0, u"out"_s, u"err"_s };

    EXPECT_EQ(result, (GCloudResult{ 0, u"out"_s, u"err"_s }));
    EXPECT_NE(result, (GCloudResult{ 1, u"out"_s, u"err"_s }));
    EXPECT_NE(result, (GCloudResult{ 0, u""_s, u"err"_s }));
    EXPECT_NE(result, (GCloudResult{ 0, u"out"_s, u""_s }));
}

} // namespace torvi
