// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/CommandLine.h"

#include <gmock/gmock.h>

#include <vector>

namespace torvi {

using CommandLine::Options;
using CommandLine::Request;

class TorviCommandLineTest : public testing::Test
{
protected:
    std::string output;
    std::string errors;

    std::variant<Options, int> parse(std::vector<const char *> arguments)
    {
        arguments.insert(arguments.begin(), "torvi");
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const auto parsed
            = CommandLine::parse(static_cast<int>(arguments.size()), arguments.data());
        output = testing::internal::GetCapturedStdout();
        errors = testing::internal::GetCapturedStderr();
        return parsed;
    }

    static std::variant<Options, int> asks(Request request, bool isTitleLive = false)
    {
        return Options{ request, isTitleLive, false };
    }
};

TEST_F(TorviCommandLineTest, ReadsEachRequest)
{
    EXPECT_EQ(parse({}), asks(Request::start));
    EXPECT_EQ(parse({ "--toggle" }), asks(Request::toggle));
    EXPECT_EQ(parse({ "--manager" }), asks(Request::manager));
    EXPECT_EQ(parse({ "--quit" }), asks(Request::quit));
    EXPECT_EQ(output + errors, "");
}

TEST_F(TorviCommandLineTest, ATitleCanBeLiveWithEveryRequest)
{
    EXPECT_EQ(parse({ "--live-title" }), asks(Request::start, true));
    EXPECT_EQ(parse({ "--toggle", "--live-title" }), asks(Request::toggle, true));
}

TEST_F(TorviCommandLineTest, TheDiagnosisIsInPlaceOfARequest)
{
    EXPECT_EQ(parse({ "--doctor" }),
              (std::variant<Options, int>(Options{ Request::start, false, true })));
    EXPECT_EQ(parse({ "--doctor", "--toggle" }), (std::variant<Options, int>(2)));
}

TEST_F(TorviCommandLineTest, TwoRequestsAreAUsageError)
{
    EXPECT_EQ(parse({ "--toggle", "--quit" }), (std::variant<Options, int>(2)));
    EXPECT_NE(errors, "");
}

TEST_F(TorviCommandLineTest, AnUnknownArgumentIsAUsageErrorThatIsNamed)
{
    EXPECT_EQ(parse({ "--frobnicate" }), (std::variant<Options, int>(2)));
    EXPECT_THAT(errors, testing::HasSubstr("--frobnicate"));
    EXPECT_EQ(parse({ "file.txt" }), (std::variant<Options, int>(2)));
    EXPECT_THAT(errors, testing::HasSubstr("file.txt"));
    EXPECT_EQ(output, "");
}

TEST_F(TorviCommandLineTest, PrintsItsVersion)
{
    EXPECT_EQ(parse({ "--version" }), (std::variant<Options, int>(0)));
    EXPECT_THAT(output, testing::StartsWith("torvi "));
    EXPECT_EQ(errors, "");
}

TEST_F(TorviCommandLineTest, HelpNamesEveryOption)
{
    EXPECT_EQ(parse({ "--help" }), (std::variant<Options, int>(0)));
    for (const char *option :
         { "--toggle", "--manager", "--quit", "--doctor", "--live-title", "--version" }) {
        EXPECT_THAT(output, testing::HasSubstr(option));
    }
}

} // namespace torvi
