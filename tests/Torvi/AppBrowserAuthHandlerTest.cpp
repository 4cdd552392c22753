// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/AppBrowserAuthHandler.h"

#include "tests/support/FakeClipboard.h"
#include "tests/support/WaitUntil.h"

#include <gtest/gtest.h>

#include <thread>

using namespace Qt::StringLiterals;

namespace torvi {

class AppBrowserAuthHandlerTest : public testing::Test
{
protected:
    FakeClipboard clipboard;
    AppBrowserAuthHandler handler{ clipboard };
};

TEST_F(AppBrowserAuthHandlerTest, ReturnsBeforeAnythingIsWritten)
{
    handler.openAuthURL(u"https://accounts.google.com/o/oauth2/auth"_s);

    EXPECT_TRUE(clipboard.log.isEmpty());
}

TEST_F(AppBrowserAuthHandlerTest, ReplacesWhatTheUserHadOnTheClipboard)
{
    clipboard.contents = u"the user's own"_s;

    handler.openAuthURL(u"https://accounts.google.com/o/oauth2/auth"_s);
    QCoreApplication::processEvents();

    EXPECT_EQ(clipboard.log, QStringList{ u"text https://accounts.google.com/o/oauth2/auth"_s });
}

TEST_F(AppBrowserAuthHandlerTest, WritesTheAddressAsItIsSpelt)
{
    const QString url
        = u"https://accounts.google.com/o/oauth2/auth?scope=openid+https%3A%2F%2Fx%2fy&state=%7e~"_s;

    handler.openAuthURL(url);
    QCoreApplication::processEvents();

    EXPECT_EQ(clipboard.contents, url);
}

TEST_F(AppBrowserAuthHandlerTest, TwoCallsInQuickSuccessionLeaveTheSecondAddress)
{
    handler.openAuthURL(u"https://accounts.google.com/first"_s);
    handler.openAuthURL(u"https://accounts.google.com/second"_s);
    QCoreApplication::processEvents();

    EXPECT_EQ(clipboard.contents, u"https://accounts.google.com/second"_s);
    EXPECT_EQ(clipboard.log.size(), 2);
}

TEST_F(AppBrowserAuthHandlerTest, WritesTheSameAddressAgainEachTime)
{
    handler.openAuthURL(u"https://accounts.google.com/same"_s);
    handler.openAuthURL(u"https://accounts.google.com/same"_s);
    QCoreApplication::processEvents();

    EXPECT_EQ(clipboard.log.size(), 2);
}

TEST_F(AppBrowserAuthHandlerTest, TouchesTheClipboardOnTheMainThreadOnly)
{
    std::thread([this] { handler.openAuthURL(u"https://accounts.google.com/o"_s); }).join();

    EXPECT_TRUE(waitUntil([this] { return !clipboard.contents.isEmpty(); }));
    EXPECT_TRUE(clipboard.isAlwaysOnOneThread);
}

TEST(AppBrowserAuthHandlerLifetimeTest, ACallUnderWayAtTheEndHasNoEffect)
{
    FakeClipboard clipboard;
    {
        AppBrowserAuthHandler handler(clipboard);
        handler.openAuthURL(u"https://accounts.google.com/o"_s);
    }

    QCoreApplication::processEvents();

    EXPECT_TRUE(clipboard.log.isEmpty());
}

} // namespace torvi
