// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/WhiteSpace.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

const QString kLineBreaks = u"\n\v\f\r\u0085\u2028\u2029"_s;
const QString kWhiteSpace
    = u"\t \u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200A"
      "\u202F\u205F\u3000"_s;

} // namespace

TEST(WhiteSpaceTest, LineBreaksAreTheseSevenAndNoOther)
{
    for (char32_t unit = 0; unit <= 0xFFFF; ++unit) {
        const QChar character(static_cast<char16_t>(unit));
        EXPECT_EQ(isLineBreak(character), kLineBreaks.contains(character)) << std::hex << +unit;
    }
}

TEST(WhiteSpaceTest, WhiteSpaceIsTheTabAndUnicodesSpaceSeparators)
{
    for (char32_t unit = 0; unit <= 0xFFFF; ++unit) {
        const QChar character(static_cast<char16_t>(unit));
        EXPECT_EQ(isWhiteSpace(character), kWhiteSpace.contains(character)) << std::hex << +unit;
    }
}

TEST(WhiteSpaceTest, TrimmingWhiteSpaceStopsAtLineBreaks)
{
    EXPECT_EQ(trimmedWhiteSpace(u"\t a b\u3000"), u"a b");
    EXPECT_EQ(trimmedWhiteSpace(u" \na\r "), u"\na\r");
    EXPECT_EQ(trimmedWhiteSpace(u" \t "), u"");
    EXPECT_EQ(trimmedWhiteSpace(u""), u"");
}

TEST(WhiteSpaceTest, TrimmingBothTakesThemInAnyOrder)
{
    EXPECT_EQ(trimmedWhiteSpaceAndLineBreaks(u" \r\n\t a\nb \u2029 "), u"a\nb");
    EXPECT_EQ(trimmedWhiteSpaceAndLineBreaks(u"\n \n"), u"");
}

TEST(WhiteSpaceTest, TextIsSplitAtEveryLineBreak)
{
    EXPECT_EQ(lines(u"a\nb\u2028c"), (QList<QStringView>{ u"a", u"b", u"c" }));
    EXPECT_EQ(lines(u"a\r\nb"), (QList<QStringView>{ u"a", u"", u"b" }));
    EXPECT_EQ(lines(u"\n"), (QList<QStringView>{ u"", u"" }));
    EXPECT_EQ(lines(u""), QList<QStringView>{ u"" });
}

} // namespace torvi
