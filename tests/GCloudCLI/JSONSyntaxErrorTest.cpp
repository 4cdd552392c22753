// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/JSONSyntaxError.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

TEST(JSONSyntaxErrorTest, CountsLinesAndCharactersFromOne)
{
    EXPECT_EQ(describeSyntaxError("x"_qba, "reason"), "illegal value at line 1, column 2");
    EXPECT_EQ(describeSyntaxError("[\n\n\"\xE2\x82\xAC\xF0\x9F\x98\x80\" 1]"_qba, "reason"),
              "missing value separator at line 3, column 7");
}

TEST(JSONSyntaxErrorTest, FindsTheFirstInvalidStringWhereverItIs)
{
    EXPECT_EQ(describeSyntaxError("{\"a\\\\\\\"\\u00E9\": \"b\", \"\t\": 1}"_qba, "reason"),
              "invalid string at line 1, column 23");
}

TEST(JSONSyntaxErrorTest, GivesTheReasonWhereTheSlowParserFindsNothing)
{
    EXPECT_EQ(describeSyntaxError(R"(["\ud83d\ude00", "\/\b"])"_qba, "out of memory"),
              "out of memory");
}

} // namespace torvi
