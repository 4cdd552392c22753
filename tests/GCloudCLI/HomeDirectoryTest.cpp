// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/HomeDirectory.h"

#include <QFile>
#include <QScopeGuard>

#include <gtest/gtest.h>

#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace torvi {

class HomeDirectoryTest : public testing::Test
{
protected:
    const QByteArray original = qgetenv("HOME");
    const QString inUserDatabase = QFile::decodeName(::getpwuid(::getuid())->pw_dir);

    ~HomeDirectoryTest() override
    {
        qputenv("HOME", original);
    }
};

TEST_F(HomeDirectoryTest, IsWhatTheEnvironmentSaysAsItStands)
{
    qputenv("HOME", "/home/é//x/");

    EXPECT_EQ(homeDirectory(), u"/home/é//x/"_s);
}

TEST_F(HomeDirectoryTest, IsTheUserDatabasesWhenTheEnvironmentHasNone)
{
    qunsetenv("HOME");

    EXPECT_EQ(homeDirectory(), inUserDatabase);
}

TEST_F(HomeDirectoryTest, IsTheUserDatabasesWhenTheEnvironmentsIsEmpty)
{
    qputenv("HOME", "");

    EXPECT_EQ(homeDirectory(), inUserDatabase);
}

TEST(ExpandTildeTest, ReplacesTheLeadingTildeAlone)
{
    EXPECT_EQ(expandTilde(u"~/a/~"_s, u"/h"_s), u"/h/a/~"_s);
    EXPECT_EQ(expandTilde(u"~"_s, u"/h"_s), u"/h"_s);
    EXPECT_EQ(expandTilde(u"/a/~/b"_s, u"/h"_s), u"/a/~/b"_s);
    EXPECT_EQ(expandTilde(u""_s, u"/h"_s), u""_s);
}

TEST(ExpandTildeTest, LeavesTheHomeOfAnotherUserAlone)
{
    EXPECT_EQ(expandTilde(u"~root/a"_s, u"/h"_s), u"~root/a"_s);
}

} // namespace torvi
