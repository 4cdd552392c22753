// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/Style/ColorRoles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace torvi {

namespace {

/// `color` as it looks on `ground`.
QColor on(const QColor &color, const QColor &ground)
{
    const float alpha = color.alphaF();
    const auto mix
        = [alpha](float above, float below) { return above * alpha + below * (1 - alpha); };
    return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                            mix(color.blueF(), ground.blueF()));
}

double luminance(const QColor &color)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

/// The contrast ratio of the Web Content Accessibility Guidelines, from 1 to 21.
double contrast(const QColor &color, const QColor &ground)
{
    const double one = luminance(on(color, ground));
    const double other = luminance(ground);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

QColor tint(QColor color, float opacity)
{
    color.setAlphaF(opacity);
    return color;
}

constexpr double kText = 4.5;
constexpr double kSymbol = 3.0;

class ColorRolesTest : public testing::TestWithParam<bool>
{
protected:
    const ColorRoles &m_roles = GetParam() ? ColorRoles::dark() : ColorRoles::light();
};

} // namespace

TEST_P(ColorRolesTest, TextsAreReadableOnEverySurface)
{
    const QColor window = m_roles.windowBackground;
    const QColor rowTint = on(tint(m_roles.accent, 0.08F), window);
    for (const QColor &ground :
         { window, on(m_roles.material, window), on(m_roles.groupBackground, window),
           on(m_roles.quaternaryFill, window), rowTint, on(m_roles.hovered, rowTint),
           m_roles.popupBackground }) {
        for (const QColor &text : { m_roles.primary, m_roles.secondary, m_roles.tertiary,
                                    m_roles.link, m_roles.red, m_roles.orange, m_roles.green }) {
            EXPECT_GE(contrast(text, ground), kText)
                << text.name().toStdString() << " on " << ground.name().toStdString();
        }
    }
}

TEST_P(ColorRolesTest, BadgesAreReadableOnTheirOwnTint)
{
    const QColor row = on(tint(m_roles.accent, 0.08F), m_roles.windowBackground);
    for (const QColor &color : { m_roles.green, m_roles.orange, m_roles.red }) {
        EXPECT_GE(contrast(color, on(tint(color, 0.15F), row)), kText)
            << color.name().toStdString();
    }
}

TEST_P(ColorRolesTest, TheBannersTextAndSymbolStandOutOnRed)
{
    const QColor banner = on(tint(m_roles.red, 0.1F), m_roles.windowBackground);

    EXPECT_GE(contrast(m_roles.primary, banner), kText);
    EXPECT_GE(contrast(m_roles.yellow, banner), kSymbol);
}

TEST_P(ColorRolesTest, WhatStandsOnTheAccentIsReadable)
{
    for (const QColor &accent : { m_roles.accent, m_roles.accentPressed }) {
        EXPECT_GE(contrast(m_roles.onAccent, accent), 4.4) << accent.name().toStdString();
    }
    EXPECT_GE(contrast(m_roles.onAccent, m_roles.accentHovered), 3.5);
}

TEST_P(ColorRolesTest, TheFocusRingStandsOutFromTheWindow)
{
    EXPECT_GE(contrast(m_roles.focusRing, m_roles.windowBackground), kSymbol);
}

TEST_P(ColorRolesTest, TextsMatterLessFromRoleToRole)
{
    const QColor window = m_roles.windowBackground;

    EXPECT_GT(contrast(m_roles.primary, window), contrast(m_roles.secondary, window));
    EXPECT_GT(contrast(m_roles.secondary, window), contrast(m_roles.tertiary, window));
    EXPECT_GT(contrast(m_roles.tertiary, window), contrast(m_roles.quaternary, window));
}

INSTANTIATE_TEST_SUITE_P(Both, ColorRolesTest, testing::Bool(),
                         [](const testing::TestParamInfo<bool> &row) {
                             return row.param ? "Dark" : "Light";
                         });

} // namespace torvi
