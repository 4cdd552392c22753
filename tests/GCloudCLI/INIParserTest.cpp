// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/INIParser.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

using INIParser::Sections;

struct INIEntry
{
    const char *name;
    QString text;
    Sections sections;
};

class INIParserTest : public testing::TestWithParam<INIEntry>
{
};

TEST_P(INIParserTest, Parses)
{
    EXPECT_EQ(INIParser::parse(GetParam().text), GetParam().sections);
}

INSTANTIATE_TEST_SUITE_P(
    Structure, INIParserTest,
    testing::Values(
        INIEntry{ "emptyText", u""_s, {} }, INIEntry{ "byteOrderMarkAlone", u"\uFEFF"_s, {} },
        INIEntry{ "keysBeforeAnyHeaderAndARepeatedKey",
                  u"project = p1\n[core]\naccount=me\nproject = p2 = x\n[core]\n"_s,
                  { { u""_s, { { u"project"_s, u"p1"_s } } },
                    { u"core"_s, { { u"account"_s, u"me"_s }, { u"project"_s, u"p2 = x"_s } } } } },
        INIEntry{ "unclosedHeaderIsIgnored",
                  u"[auth]\n[core\nproject = p\n"_s,
                  { { u"auth"_s, { { u"project"_s, u"p"_s } } } } },
        INIEntry{ "unclosedHeaderWithAnEqualsSignIsAPair",
                  u"[core]\n[a = b\n"_s,
                  { { u"core"_s, { { u"[a"_s, u"b"_s } } } } },
        INIEntry{ "emptyBracketsReopenTheEmptyName",
                  u"[core]\na = 1\n[]\nb = 2\n"_s,
                  { { u"core"_s, { { u"a"_s, u"1"_s } } }, { u""_s, { { u"b"_s, u"2"_s } } } } },
        INIEntry{ "emptyBracketsAloneAreASection", u"[]"_s, { { u""_s, {} } } },
        INIEntry{ "openingBracketAlone", u"["_s, {} },
        INIEntry{ "closingBracketAlone", u"]"_s, {} },
        INIEntry{ "headerWithAnEqualsSign", u"[a=b]"_s, { { u"a=b"_s, {} } } },
        INIEntry{ "headerNameIsTrimmed", u"[ \tcore\u00A0]"_s, { { u"core"_s, {} } } },
        INIEntry{ "headerWithTextBehindItIsNone", u"[core] ; c\n"_s, {} },
        INIEntry{ "headerWithBracketsInside", u"[[core]]"_s, { { u"[core]"_s, {} } } },
        INIEntry{ "emptySectionIsPresent",
                  u"[core]\naccount = a\n\n[auth]\n\n"_s,
                  { { u"core"_s, { { u"account"_s, u"a"_s } } }, { u"auth"_s, {} } } },
        INIEntry{
            "reopenedSectionKeepsItsKeys",
            u"[core]\na = 1\n[auth]\n[core]\nb = 2"_s,
            { { u"core"_s, { { u"a"_s, u"1"_s }, { u"b"_s, u"2"_s } } }, { u"auth"_s, {} } } },
        INIEntry{ "namesAreCaseSensitive",
                  u"[core]\na = 1\nA = 2\n[Core]\na = 3"_s,
                  { { u"core"_s, { { u"a"_s, u"1"_s }, { u"A"_s, u"2"_s } } },
                    { u"Core"_s, { { u"a"_s, u"3"_s } } } } }),
    [](const auto &entry) { return entry.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Skipped, INIParserTest,
    testing::Values(
        INIEntry{ "commentsAndBlankLines",
                  u"; a = 1\n# b = 2\n\n \t \n  # c = 3\n\t;d = 4\n[core]\n#e = 5\n"_s,
                  { { u"core"_s, {} } } },
        INIEntry{ "lineWithoutEqualsSign", u"[core]\nproject\n"_s, { { u"core"_s, {} } } },
        INIEntry{ "lineWithoutEqualsSignBeforeAnyHeader", u"project\n"_s, {} },
        INIEntry{ "emptyKey", u"[core]\n= value\n \t = value\n"_s, { { u"core"_s, {} } } },
        INIEntry{ "emptyKeyBeforeAnyHeader", u"= value\n"_s, {} },
        INIEntry{ "commentedHeader",
                  u"[core]\n#[auth]\na = 1"_s,
                  { { u"core"_s, { { u"a"_s, u"1"_s } } } } }),
    [](const auto &entry) { return entry.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Values, INIParserTest,
    testing::Values(INIEntry{ "emptyValue",
                              u"a =\nb = \t\n"_s,
                              { { u""_s, { { u"a"_s, u""_s }, { u"b"_s, u""_s } } } } },
                    INIEntry{ "commentMarksInsideBelongToTheValue",
                              u"a = 1 # one ; x"_s,
                              { { u""_s, { { u"a"_s, u"1 # one ; x"_s } } } } },
                    INIEntry{ "quotesAndPercentSignsStay",
                              u"a = \"x\"\nb = '50%%'"_s,
                              { { u""_s, { { u"a"_s, u"\"x\""_s }, { u"b"_s, u"'50%%'"_s } } } } },
                    INIEntry{ "keyAndValueAreTrimmed",
                              u"\t a b\u2003=\u3000c  d\u00A0 "_s,
                              { { u""_s, { { u"a b"_s, u"c  d"_s } } } } },
                    INIEntry{ "valueBeginsWithAnEqualsSign",
                              u"a == b"_s,
                              { { u""_s, { { u"a"_s, u"= b"_s } } } } },
                    INIEntry{ "zeroWidthSpaceIsNoWhiteSpace",
                              u"a = \u200Bb"_s,
                              { { u""_s, { { u"a"_s, u"\u200Bb"_s } } } } },
                    INIEntry{ "otherScripts",
                              u"[\u00FCber]\n\u540D = \U0001F600"_s,
                              { { u"\u00FCber"_s, { { u"\u540D"_s, u"\U0001F600"_s } } } } },
                    INIEntry{ "nul", u"a = x\0y"_s, { { u""_s, { { u"a"_s, u"x\0y"_s } } } } },
                    INIEntry{ "leadingByteOrderMarkIsDropped",
                              u"\uFEFF[core]\na = 1"_s,
                              { { u"core"_s, { { u"a"_s, u"1"_s } } } } },
                    INIEntry{ "laterByteOrderMarkStays",
                              u"[core]\n\uFEFFa = 1"_s,
                              { { u"core"_s, { { u"\uFEFFa"_s, u"1"_s } } } } }),
    [](const auto &entry) { return entry.param.name; });

struct LineBreakEntry
{
    const char *name;
    QString lineBreak;
};

class INIParserLineBreakTest : public testing::TestWithParam<LineBreakEntry>
{
};

TEST_P(INIParserLineBreakTest, EndsALine)
{
    const QString text = u"[core]#a = 1#[auth]#b = 2#"_s.replace(u'#', GetParam().lineBreak);

    EXPECT_EQ(
        INIParser::parse(text),
        (Sections{ { u"core"_s, { { u"a"_s, u"1"_s } } }, { u"auth"_s, { { u"b"_s, u"2"_s } } } }));
}

INSTANTIATE_TEST_SUITE_P(
    All, INIParserLineBreakTest,
    testing::Values(LineBreakEntry{ "LF", u"\n"_s }, LineBreakEntry{ "CR", u"\r"_s },
                    LineBreakEntry{ "CRLF", u"\r\n"_s }, LineBreakEntry{ "VT", u"\v"_s },
                    LineBreakEntry{ "FF", u"\f"_s }, LineBreakEntry{ "NEL", u"\u0085"_s },
                    LineBreakEntry{ "LineSeparator", u"\u2028"_s },
                    LineBreakEntry{ "ParagraphSeparator", u"\u2029"_s }),
    [](const auto &entry) { return entry.param.name; });

TEST(INIParserRobustnessTest, TakesAVeryLongText)
{
    const QString line = u"key = value\n"_s;

    EXPECT_EQ(INIParser::parse(line.repeated(100'000)),
              (Sections{ { u""_s, { { u"key"_s, u"value"_s } } } }));
}

} // namespace torvi
