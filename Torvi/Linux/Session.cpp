// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/Session.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

constexpr const char *kPlatform = "QT_QPA_PLATFORM";

/// The choice is ours, not the user's.
bool hasPreferred = false; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

bool isSet(const char *variable)
{
    return !qEnvironmentVariableIsEmpty(variable);
}

} // namespace

bool Session::isWayland()
{
    return isSet("WAYLAND_DISPLAY");
}

bool Session::windowsAreX11()
{
    return QGuiApplication::platformName() == u"xcb";
}

void Session::preferX11()
{
    if (!isSet(kPlatform) && isSet("DISPLAY")) {
        qputenv(kPlatform, isWayland() ? "xcb;wayland" : "xcb");
        hasPreferred = true;
    }
}

void Session::forgetPreference()
{
    if (hasPreferred) {
        qunsetenv(kPlatform);
        hasPreferred = false;
    }
}

bool Session::hasDisplay()
{
    return isSet(kPlatform) || isSet("DISPLAY") || isWayland();
}

} // namespace torvi
