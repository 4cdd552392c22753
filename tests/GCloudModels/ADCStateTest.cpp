// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudModels/ADCState.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

TEST(ADCStateTest, StartsWithoutUsableCredentials)
{
    const ADCState state;

    EXPECT_EQ(state, (ADCState{ ADCType::none, std::nullopt, std::nullopt, false }));
}

TEST(ADCStateTest, TellsAnAbsentQuotaProjectFromAnEmptyOne)
{
    const ADCState absent{ ADCType::userCredentials, std::nullopt, std::nullopt, true };
    const ADCState empty{ ADCType::userCredentials, u""_s, std::nullopt, true };

    EXPECT_NE(absent, empty);
    EXPECT_NE(qHash(absent), qHash(empty));
}

} // namespace torvi
