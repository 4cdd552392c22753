// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/Utf8.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

struct Utf8Entry
{
    const char *name;
    QByteArray bytes;
    std::optional<QString> text;
};

class Utf8Test : public testing::TestWithParam<Utf8Entry>
{
};

TEST_P(Utf8Test, DecodesStrictly)
{
    EXPECT_EQ(decodeUtf8(GetParam().bytes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Utf8Test,
    testing::Values(
        Utf8Entry{ "empty", ""_qba, u""_s }, Utf8Entry{ "ascii", "work\n"_qba, u"work\n"_s },
        Utf8Entry{ "nulIsACharacter", "a\0b"_qba, u"a\0b"_s },
        Utf8Entry{ "twoThreeAndFourBytes", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"_qba,
                   u"\u00E9\u20AC\U0001F600"_s },
        Utf8Entry{ "leadingByteOrderMarkIsDropped", "\xEF\xBB\xBF[core]"_qba, u"[core]"_s },
        Utf8Entry{ "byteOrderMarkAlone", "\xEF\xBB\xBF"_qba, u""_s },
        Utf8Entry{ "laterByteOrderMarkStays", "a\xEF\xBB\xBF"_qba, u"a\uFEFF"_s },
        Utf8Entry{ "secondByteOrderMarkStays", "\xEF\xBB\xBF\xEF\xBB\xBF"_qba, u"\uFEFF"_s },
        Utf8Entry{ "latin1", "caf\xE9"_qba, std::nullopt },
        Utf8Entry{ "continuationByteAlone", "\x80"_qba, std::nullopt },
        Utf8Entry{ "cutOffAtTheEnd", "ab\xE2\x82"_qba, std::nullopt },
        Utf8Entry{ "cutOffInTheMiddle", "\xE2\x82 and more"_qba, std::nullopt },
        Utf8Entry{ "overlong", "\xC0\xAF"_qba, std::nullopt },
        Utf8Entry{ "surrogate", "\xED\xA0\x80"_qba, std::nullopt },
        Utf8Entry{ "beyondUnicode", "\xF4\x90\x80\x80"_qba, std::nullopt },
        Utf8Entry{ "utf16", "\xFF\xFE\x61"_qba, std::nullopt }),
    [](const auto &entry) { return entry.param.name; });

} // namespace torvi
