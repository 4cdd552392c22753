// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/Style/Typography.h"

#include <gtest/gtest.h>

namespace torvi {

TEST(TypographyTest, EachStyleHasItsSizeAndWeight)
{
    const auto looks = [](const QFont &font) { return std::pair(font.pixelSize(), font.weight()); };

    EXPECT_EQ(looks(Typography::title()), std::pair(22, QFont::Normal));
    EXPECT_EQ(looks(Typography::headline()), std::pair(13, QFont::DemiBold));
    EXPECT_EQ(looks(Typography::body()), std::pair(13, QFont::Normal));
    EXPECT_EQ(looks(Typography::callout()), std::pair(12, QFont::Normal));
    EXPECT_EQ(looks(Typography::caption()), std::pair(11, QFont::Normal));
}

TEST(TypographyTest, StylesAreInTheDesktopsOwnFont)
{
    EXPECT_EQ(Typography::body().family(), QFont().family());
}

} // namespace torvi
