// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/SignInAddress.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

struct ChunkAndAddress
{
    const char *name;
    QByteArray chunk;
    std::optional<QString> address;
};

class SignInAddressTest : public testing::TestWithParam<ChunkAndAddress>
{
};

TEST_P(SignInAddressTest, IsFoundAsPrinted)
{
    EXPECT_EQ(SignInAddress::find(GetParam().chunk), GetParam().address);
}

INSTANTIATE_TEST_SUITE_P(
    Chunks, SignInAddressTest,
    testing::Values(
        ChunkAndAddress{ "AsGcloudPrintsIt",
                         "Your browser has been opened to visit:\n\n"
                         "    https://accounts.google.com/o/oauth2/auth?response_type=code"
                         "&redirect_uri=http%3A%2F%2Flocalhost%3A8085%2F&scope=openid+email\n\n",
                         u"https://accounts.google.com/o/oauth2/auth?response_type=code"
                         "&redirect_uri=http%3A%2F%2Flocalhost%3A8085%2F&scope=openid+email"_s },
        ChunkAndAddress{ "WithItsEscapesUntouched",
                         "https://accounts.google.com/o/oauth2/auth?a=%2f%7E%41&b=a%20b",
                         u"https://accounts.google.com/o/oauth2/auth?a=%2f%7E%41&b=a%20b"_s },
        ChunkAndAddress{ "WithoutQuery", "see https://accounts.google.com/o/oauth2/auth now",
                         u"https://accounts.google.com/o/oauth2/auth"_s },
        ChunkAndAddress{ "FirstOfTwo",
                         "https://accounts.google.com/o/oauth2/auth?1\n"
                         "https://accounts.google.com/o/oauth2/auth?2\n",
                         u"https://accounts.google.com/o/oauth2/auth?1"_s },
        ChunkAndAddress{ "EndedByATab", "https://accounts.google.com/o/oauth2/auth?1\tx",
                         u"https://accounts.google.com/o/oauth2/auth?1"_s },
        ChunkAndAddress{ "EndedByWideWhiteSpace",
                         "https://accounts.google.com/o/oauth2/auth?1\xe2\x80\xa8x",
                         u"https://accounts.google.com/o/oauth2/auth?1"_s },
        ChunkAndAddress{
            "AmongOtherLetters",
            "Gehe zu \xc3\xbc: https://accounts.google.com/o/oauth2/auth?1 \xe2\x86\x92",
            u"https://accounts.google.com/o/oauth2/auth?1"_s },
        ChunkAndAddress{ "EndCutOff", "https://accounts.google.com/o/oauth2/auth?state=ab",
                         u"https://accounts.google.com/o/oauth2/auth?state=ab"_s },
        ChunkAndAddress{ "HeadCutOff", "counts.google.com/o/oauth2/auth?state=ab", std::nullopt },
        ChunkAndAddress{ "PathCutOff", "https://accounts.google.com/o/oauth2/au", std::nullopt },
        ChunkAndAddress{ "OtherHost", "https://accountsxgoogle.com/o/oauth2/auth?a", std::nullopt },
        ChunkAndAddress{ "OtherScheme", "http://accounts.google.com/o/oauth2/auth?a",
                         std::nullopt },
        ChunkAndAddress{ "NoUrl", "https://accounts.google.com/o/oauth2/auth?a=\"b\" x",
                         std::nullopt },
        ChunkAndAddress{ "NotUtf8", "https://accounts.google.com/o/oauth2/auth?a \xff",
                         std::nullopt },
        ChunkAndAddress{ "Empty", "", std::nullopt }),
    [](const auto &row) { return std::string(row.param.name); });

} // namespace torvi
