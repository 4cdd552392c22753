// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/Style/ColorRoles.h"

#include <QQmlEngine>

namespace torvi {

namespace {

QColor white(int percent)
{
    return { 255, 255, 255, 255 * percent / 100 };
}

QColor black(int percent)
{
    return { 0, 0, 0, 255 * percent / 100 };
}

QColor rgb(QRgb value)
{
    return QColor::fromRgb(value);
}

QColor translucent(QRgb value, int percent)
{
    QColor color = rgb(value);
    color.setAlpha(255 * percent / 100);
    return color;
}

void setUpDark(ColorRoles &roles)
{
    roles.primary = rgb(0xf2f3f5);
    roles.secondary = rgb(0xb4b7be);
    roles.tertiary = rgb(0x9b9fa8);
    roles.quaternary = rgb(0x5d6069);
    roles.green = rgb(0x4cc971);
    roles.orange = rgb(0xffa348);
    roles.yellow = rgb(0xf9ce4a);
    roles.red = rgb(0xff7d76);
    roles.link = rgb(0x7fb0ff);
    roles.windowBackground = rgb(0x1e1f23);
    roles.material = white(6);
    roles.quaternaryFill = white(8);
    roles.groupBackground = white(4);
    roles.popupBackground = rgb(0x2b2c31);
    roles.popupBorder = white(14);
    roles.divider = white(11);
    roles.scrim = black(45);
    roles.accent = rgb(0x3574e3);
    roles.accentHovered = rgb(0x4280ec);
    roles.accentPressed = rgb(0x2a63c8);
    roles.onAccent = rgb(0xffffff);
    roles.control = white(12);
    roles.controlHovered = white(17);
    roles.controlPressed = white(23);
    roles.controlBorder = white(8);
    roles.hovered = white(7);
    roles.pressed = white(12);
    roles.field = black(22);
    roles.fieldBorder = white(18);
    roles.selectedText = translucent(0x3574e3, 70);
    roles.focusRing = rgb(0x6ea4ff);
    roles.track = white(18);
    roles.knob = rgb(0xf5f6f8);
    roles.scrollIndicator = white(35);
}

void setUpLight(ColorRoles &roles)
{
    roles.primary = rgb(0x1c1d20);
    roles.secondary = rgb(0x4b4e56);
    roles.tertiary = rgb(0x5d6068);
    roles.quaternary = rgb(0xaeb1b8);
    roles.green = rgb(0x136029);
    roles.orange = rgb(0x8f3f00);
    roles.yellow = rgb(0x9a6a00);
    roles.red = rgb(0xa81f16);
    roles.link = rgb(0x1558c9);
    roles.windowBackground = rgb(0xf5f5f7);
    roles.material = black(4);
    roles.quaternaryFill = black(6);
    roles.groupBackground = white(75);
    roles.popupBackground = rgb(0xffffff);
    roles.popupBorder = black(16);
    roles.divider = black(11);
    roles.scrim = black(25);
    roles.accent = rgb(0x1f65d6);
    roles.accentHovered = rgb(0x2f74e2);
    roles.accentPressed = rgb(0x1854b8);
    roles.onAccent = rgb(0xffffff);
    roles.control = rgb(0xffffff);
    roles.controlHovered = rgb(0xebecef);
    roles.controlPressed = rgb(0xdcdee2);
    roles.controlBorder = black(18);
    roles.hovered = black(5);
    roles.pressed = black(10);
    roles.field = rgb(0xffffff);
    roles.fieldBorder = black(22);
    roles.selectedText = translucent(0x1f65d6, 28);
    roles.focusRing = rgb(0x4a86e8);
    roles.track = black(18);
    roles.knob = rgb(0xffffff);
    roles.scrollIndicator = black(38);
}

} // namespace

ColorRoles::ColorRoles()
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

ColorRoles &ColorRoles::dark()
{
    static ColorRoles roles;
    [[maybe_unused]] static const bool ready = (setUpDark(roles), true);
    return roles;
}

ColorRoles &ColorRoles::light()
{
    static ColorRoles roles;
    [[maybe_unused]] static const bool ready = (setUpLight(roles), true);
    return roles;
}

} // namespace torvi
