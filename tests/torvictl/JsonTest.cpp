// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "torvictl/Json.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

TEST(JsonTest, AbsentOptionalsAreNullAlsoWhereTheStoredFormLeavesThemOut)
{
    EXPECT_EQ(json(ServiceAccount{ u"s"_s, u"p"_s, std::nullopt }),
              R"({"email":"s","projectId":"p","displayName":null})");
}

TEST(JsonTest, ProjectHasItsFieldsInTheirOrder)
{
    EXPECT_EQ(json(Project{ u"p"_s, u"P"_s, u"12"_s, true, std::nullopt }),
              R"({"id":"p","name":"P","projectNumber":"12","isPinned":true,"lastUsed":null})");
}

TEST(JsonTest, TimesAreIso8601InUtc)
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(1, Qt::UTC);

    EXPECT_EQ(json(std::optional(time)), R"("1970-01-01T00:00:00.001Z")");
}

TEST(JsonTest, EnumsAreTheirRawValues)
{
    EXPECT_EQ(json(Account{ u"a"_s, false, AccountType::serviceAccount }),
              R"({"email":"a","isActive":false,"accountType":"SERVICE_ACCOUNT"})");
}

TEST(JsonTest, ConfigurationHoldsAllItsProperties)
{
    EXPECT_EQ(json(Configuration{ u"c"_s, true, { u"p"_s, u"a"_s, u"r"_s, std::nullopt, u""_s } }),
              R"({"name":"c","isActive":true,"properties":{"project":"p","account":"a",)"
              R"("region":"r","zone":null,"impersonateServiceAccount":""}})");
}

TEST(JsonTest, EmptyContextIsNullsAndNoCredentials)
{
    EXPECT_EQ(json(AuthContext::empty()),
              R"({"activeProject":null,"activeAccount":null,"activeConfiguration":null,)"
              R"("impersonatedServiceAccount":null,)"
              R"("adcState":{"type":"none","quotaProject":null,"clientEmail":null,)"
              R"("isValid":false}})");
}

TEST(JsonTest, TextsAreEscapedAndKeptInUtf8)
{
    EXPECT_EQ(json(u"a\"b\\c\n\u0001 größer 東京 🙂"_s),
              R"("a\"b\\c\n\u0001 größer 東京 🙂")");
}

TEST(JsonTest, ListsKeepTheirOrder)
{
    EXPECT_EQ(json(QStringList{ u"b"_s, u"a"_s }), R"(["b","a"])");
    EXPECT_EQ(json(QStringList{}), "[]");
}

} // namespace torvi
