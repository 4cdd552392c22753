// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudModels/AuthContext.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

TEST(AuthContextTest, EmptyHasEveryOptionalAbsentAndNoCredentials)
{
    const AuthContext built{ std::nullopt, std::nullopt, std::nullopt, std::nullopt,
                             ADCState{ ADCType::none, std::nullopt, std::nullopt, false } };

    EXPECT_EQ(AuthContext::empty(), built);
    EXPECT_EQ(qHash(AuthContext::empty()), qHash(built));
}

TEST(AuthContextTest, EmptyIsBuiltOnce)
{
    EXPECT_EQ(&AuthContext::empty(), &AuthContext::empty());
}

TEST(AuthContextTest, ComparesAllFieldsOfItsProject)
{
    AuthContext pinned;
    pinned.activeProject = Project{ u"p"_s, u"P"_s, std::nullopt, true, std::nullopt };
    AuthContext unpinned = pinned;
    unpinned.activeProject->isPinned = false;

    EXPECT_NE(pinned, unpinned);
}

TEST(AuthContextTest, EachFieldCounts)
{
    AuthContext account;
    account.activeAccount = Account{ u"a"_s, true, AccountType::user };
    AuthContext configuration;
    configuration.activeConfiguration = Configuration{ u"c"_s, true, {} };
    AuthContext impersonated;
    impersonated.impersonatedServiceAccount = ServiceAccount{ u"s"_s, u"p"_s, std::nullopt };
    AuthContext credentials;
    credentials.adcState.isValid = true;

    for (const AuthContext &context : { account, configuration, impersonated, credentials }) {
        EXPECT_NE(context, AuthContext::empty());
        EXPECT_NE(qHash(context), qHash(AuthContext::empty()));
    }
}

} // namespace torvi
