// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudModels/ADCType.h"
#include "GCloudModels/AccountType.h"
#include "GCloudModels/ImpersonationMode.h"

#include <gtest/gtest.h>

namespace torvi {

TEST(RawValueTest, ADCTypesAreTheFilesTypeMember)
{
    EXPECT_EQ(rawValue(ADCType::userCredentials), u"authorized_user");
    EXPECT_EQ(rawValue(ADCType::serviceAccountKey), u"service_account");
    EXPECT_EQ(rawValue(ADCType::impersonatedServiceAccount), u"impersonated_service_account");
    EXPECT_EQ(rawValue(ADCType::none), u"none");
}

TEST(RawValueTest, AccountTypesAreGcloudsTexts)
{
    EXPECT_EQ(rawValue(AccountType::user), u"USER");
    EXPECT_EQ(rawValue(AccountType::serviceAccount), u"SERVICE_ACCOUNT");
}

TEST(RawValueTest, ImpersonationModesAreEnumerableInOrder)
{
    constexpr auto modes = allCases<ImpersonationMode>();

    ASSERT_EQ(modes.size(), 3U);
    EXPECT_EQ(rawValue(modes[0]), u"ADC Only");
    EXPECT_EQ(rawValue(modes[1]), u"CLI Only");
    EXPECT_EQ(rawValue(modes[2]), u"Both");
}

TEST(RawValueTest, EveryCaseComesBackFromItsText)
{
    for (const ADCType type : allCases<ADCType>()) {
        EXPECT_EQ(fromRawValue<ADCType>(rawValue(type)), type);
    }
}

TEST(RawValueTest, UnknownTextYieldsNothing)
{
    EXPECT_EQ(fromRawValue<ADCType>(u"external_account"), std::nullopt);
    EXPECT_EQ(fromRawValue<ADCType>(u"NONE"), std::nullopt);
    EXPECT_EQ(fromRawValue<ImpersonationMode>(u""), std::nullopt);
}

} // namespace torvi
