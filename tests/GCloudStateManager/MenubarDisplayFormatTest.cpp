// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/MenubarDisplayFormat.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

TEST(MenubarDisplayFormatTest, ListsItsCasesInOrder)
{
    const std::array expected{ MenubarDisplayFormat::iconOnly, MenubarDisplayFormat::iconAndProject,
                               MenubarDisplayFormat::iconAndProjectAndAccount };

    EXPECT_EQ(allCases<MenubarDisplayFormat>(), expected);
}

TEST(MenubarDisplayFormatTest, HasRawValues)
{
    EXPECT_EQ(rawValue(MenubarDisplayFormat::iconOnly), u"icon_only"_s);
    EXPECT_EQ(rawValue(MenubarDisplayFormat::iconAndProject), u"icon_and_project"_s);
    EXPECT_EQ(rawValue(MenubarDisplayFormat::iconAndProjectAndAccount),
              u"icon_and_project_and_account"_s);
}

TEST(MenubarDisplayFormatTest, IsFoundByItsExactRawValueOnly)
{
    EXPECT_EQ(fromRawValue<MenubarDisplayFormat>(u"icon_only"), MenubarDisplayFormat::iconOnly);
    EXPECT_EQ(fromRawValue<MenubarDisplayFormat>(u"Icon_only"), std::nullopt);
    EXPECT_EQ(fromRawValue<MenubarDisplayFormat>(u""), std::nullopt);
}

TEST(MenubarDisplayFormatTest, HasLabels)
{
    EXPECT_EQ(label(MenubarDisplayFormat::iconOnly), u"Icon only"_s);
    EXPECT_EQ(label(MenubarDisplayFormat::iconAndProject), u"Icon + Project"_s);
    EXPECT_EQ(label(MenubarDisplayFormat::iconAndProjectAndAccount), u"Icon + Project + Account"_s);
}

} // namespace torvi
