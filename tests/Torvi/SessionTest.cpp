// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/Session.h"

#include <QByteArray>

#include <gtest/gtest.h>

namespace torvi {

class SessionTest : public testing::Test
{
protected:
    void SetUp() override
    {
        qunsetenv("QT_QPA_PLATFORM");
    }

    void TearDown() override
    {
        Session::forgetPreference();
        for (const char *variable : { "QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY" }) {
            qunsetenv(variable);
        }
    }

    static QByteArray platform()
    {
        return qgetenv("QT_QPA_PLATFORM");
    }
};

TEST_F(SessionTest, PrefersX11WhereThereIsAnXServer)
{
    qputenv("DISPLAY", ":7");

    Session::preferX11();

    EXPECT_EQ(platform(), "xcb");
}

TEST_F(SessionTest, FallsBackToWaylandWhereTheXServerIsNotAlive)
{
    qputenv("DISPLAY", ":7");
    qputenv("WAYLAND_DISPLAY", "wayland-0");

    Session::preferX11();

    EXPECT_EQ(platform(), "xcb;wayland");
}

TEST_F(SessionTest, LeavesTheChoiceToQtWithoutAnXServer)
{
    qputenv("WAYLAND_DISPLAY", "wayland-0");

    Session::preferX11();

    EXPECT_TRUE(platform().isEmpty());
}

TEST_F(SessionTest, TheUsersChoiceStands)
{
    qputenv("DISPLAY", ":7");
    qputenv("QT_QPA_PLATFORM", "wayland");

    Session::preferX11();
    EXPECT_EQ(platform(), "wayland");
    Session::forgetPreference();
    EXPECT_EQ(platform(), "wayland");
}

TEST_F(SessionTest, ChildrenDoNotInheritThePreference)
{
    qputenv("DISPLAY", ":7");

    Session::preferX11();
    Session::forgetPreference();

    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_QPA_PLATFORM"));
}

TEST_F(SessionTest, KnowsWhetherThereIsADisplay)
{
    EXPECT_FALSE(Session::hasDisplay());
    qputenv("DISPLAY", "");
    EXPECT_FALSE(Session::hasDisplay());
    qputenv("DISPLAY", ":7");
    EXPECT_TRUE(Session::hasDisplay());
    qunsetenv("DISPLAY");
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    EXPECT_TRUE(Session::hasDisplay());
    qunsetenv("WAYLAND_DISPLAY");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    EXPECT_TRUE(Session::hasDisplay());
}

TEST_F(SessionTest, TestsRunOnNoDesktop)
{
    EXPECT_FALSE(Session::isWayland());
    EXPECT_FALSE(Session::windowsAreX11());
}

} // namespace torvi
