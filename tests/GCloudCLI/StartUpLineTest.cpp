// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/StartUpLine.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

struct LineAndFolder
{
    const char *name;
    QString line;
    std::optional<QString> folder;
};

class StartUpLineTest : public testing::TestWithParam<LineAndFolder>
{
};

TEST_P(StartUpLineTest, TellsTheFolderThatTheSdkIsIn)
{
    EXPECT_EQ(StartUpLine::sdkParentFolder(GetParam().line), GetParam().folder);
    if (GetParam().folder.has_value()) {
        EXPECT_TRUE(StartUpLine::canBeIn(GetParam().line.toUtf8()));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Lines, StartUpLineTest,
    testing::Values(
        LineAndFolder{ "AsTheInstallerWritesIt",
                       u"if [ -f '/Users/u/google-cloud-sdk/path.zsh.inc' ]; then "
                       ". '/Users/u/google-cloud-sdk/path.zsh.inc'; fi"_s,
                       u"/Users/u/"_s },
        LineAndFolder{ "DoubleQuotes", u"source \"/a b/google-cloud-sdk/path.bash.inc\""_s,
                       u"/a b/"_s },
        LineAndFolder{ "UnexpandedVariable", u"source \"$HOME/google-cloud-sdk/path.zsh.inc\""_s,
                       u"$HOME/"_s },
        LineAndFolder{ "NoQuotes", u"source /Users/u/google-cloud-sdk/path.bash.inc"_s,
                       u"/Users/u/"_s },
        LineAndFolder{ "NoSlashBeforeTheSdk", u"source /opt/my-google-cloud-sdk/path.bash.inc"_s,
                       u"/opt/my-"_s },
        LineAndFolder{ "TildeUnexpanded", u". ~/google-cloud-sdk/path.bash.inc"_s, u"~/"_s },
        LineAndFolder{ "SingleQuoteGoesBeforeALaterDoubleQuote",
                       u"A='x' . \"/b/google-cloud-sdk/path.zsh.inc\""_s, u" . \"/b/"_s },
        LineAndFolder{ "EmptyAfterTheQuoteFallsBackToTheBlank",
                       u"source ''google-cloud-sdk/path.zsh.inc"_s, u"''"_s },
        LineAndFolder{ "EmptyAfterTheDoubleQuoteFallsBackToTheBlank",
                       u"source \"google-cloud-sdk/path.zsh.inc"_s, u"\""_s },
        LineAndFolder{ "EmptyAfterTheQuoteWithoutABlank", u"'google-cloud-sdk/path.zsh.inc"_s,
                       std::nullopt },
        LineAndFolder{ "BarePath", u"/Users/u/google-cloud-sdk/path.bash.inc"_s, std::nullopt },
        LineAndFolder{ "BarePathAfterBlanks", u"  /Users/u/google-cloud-sdk/path.bash.inc"_s,
                       std::nullopt },
        LineAndFolder{ "NothingBefore", u"google-cloud-sdk/path.bash.inc"_s, std::nullopt },
        LineAndFolder{ "BlankEndDoesNotCount", u"source google-cloud-sdk/path.bash.inc"_s,
                       std::nullopt },
        LineAndFolder{ "AnotherFileOfTheSdk",
                       u"source '/Users/u/google-cloud-sdk/completion.zsh.inc'"_s, std::nullopt },
        LineAndFolder{ "Unrelated", u"export EDITOR=vi"_s, std::nullopt },
        LineAndFolder{ "Empty", u""_s, std::nullopt }),
    [](const auto &row) { return std::string(row.param.name); });

TEST(StartUpLineFileTest, AFileWithoutThePathFileNeedsNoLook)
{
    EXPECT_FALSE(StartUpLine::canBeIn("alias ll='ls -l'\nsource /opt/google-cloud-sdk/x.inc\n"));
    EXPECT_TRUE(StartUpLine::canBeIn("#\nsource /opt/google-cloud-sdk/path.zsh.inc\n"));
}

} // namespace torvi
