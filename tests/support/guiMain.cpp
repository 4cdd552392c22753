// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include <QGuiApplication>
#include <QTemporaryDir>

#include <gmock/gmock.h>

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    // No test meets the user's desktop: each brings the bus and the display that it needs.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/session-bus");
    for (const char *variable :
         { "XDG_CONFIG_HOME", "XDG_CURRENT_DESKTOP", "XDG_ACTIVATION_TOKEN", "CLOUDSDK_CONFIG",
           "SHELL", "DISPLAY", "WAYLAND_DISPLAY", "TORVI_RENDERER" }) {
        qunsetenv(variable);
    }
    testing::InitGoogleMock(&argc, argv);
    const QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
