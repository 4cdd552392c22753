// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/ADCStatus.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

struct KindWords
{
    const char *name;
    ADCType type;
    QString summary;
    QString description;
    QString symbol;
    QString typeName;
    bool isConfigured;
};

class ADCStatusWordsTest : public testing::TestWithParam<KindWords>
{
};

TEST_P(ADCStatusWordsTest, EachViewHasItsOwn)
{
    const ADCStatus status(ADCState{ GetParam().type, std::nullopt, std::nullopt, true });

    EXPECT_EQ(status.summary(), GetParam().summary);
    EXPECT_EQ(status.description(), GetParam().description);
    EXPECT_EQ(status.symbol(), GetParam().symbol);
    EXPECT_EQ(status.typeName(), GetParam().typeName);
    EXPECT_EQ(status.isConfigured(), GetParam().isConfigured);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ADCStatusWordsTest,
    testing::Values(KindWords{ "User", ADCType::userCredentials, u"User credentials"_s,
                               u"User credentials"_s, u"person.badge.key"_s,
                               u"User Credentials (authorized_user)"_s, true },
                    KindWords{ "Key", ADCType::serviceAccountKey, u"Service account key"_s,
                               u"Service account key"_s, u"key.fill"_s, u"Service Account Key"_s,
                               true },
                    KindWords{ "Impersonated", ADCType::impersonatedServiceAccount,
                               u"Impersonated SA"_s, u"Impersonated service account"_s,
                               u"bolt.badge.a"_s, u"Impersonated Service Account"_s, true },
                    KindWords{ "None", ADCType::none, u"Not configured"_s, u"Not configured"_s,
                               u"key"_s, u"Not Configured"_s, false }),
    [](const auto &row) { return row.param.name; });

TEST(ADCStatusTest, TellsAnAbsentQuotaProjectFromAnEmptyOne)
{
    EXPECT_FALSE(ADCStatus().hasQuotaProject());

    const ADCStatus empty(ADCState{ ADCType::userCredentials, u""_s, std::nullopt, true });
    EXPECT_TRUE(empty.hasQuotaProject());
    EXPECT_EQ(empty.quotaProject(), u""_s);
}

TEST(ADCStatusTest, TellsAnAbsentClientEmailFromAnEmptyOne)
{
    EXPECT_FALSE(ADCStatus().hasClientEmail());
    EXPECT_EQ(ADCStatus().clientEmail(), u""_s);

    const ADCStatus empty(ADCState{ ADCType::serviceAccountKey, std::nullopt, u""_s, true });
    EXPECT_TRUE(empty.hasClientEmail());
    EXPECT_EQ(empty.clientEmail(), u""_s);
    const ADCStatus set(ADCState{ ADCType::userCredentials, std::nullopt, u"a@x"_s, true });
    EXPECT_EQ(set.clientEmail(), u"a@x"_s);
}

TEST(ADCStatusTest, IsValidAsTheFileIs)
{
    EXPECT_FALSE(ADCStatus().isValid());
    EXPECT_TRUE(ADCStatus(ADCState{ ADCType::none, std::nullopt, std::nullopt, true }).isValid());
}

TEST(ADCStatusTest, ImpersonatesOnlyWithTheKindAndAnEmail)
{
    const auto email = [](ADCType type, std::optional<QString> clientEmail) {
        const ADCStatus status(ADCState{ type, std::nullopt, std::move(clientEmail), true });
        return std::pair(status.isImpersonating(), status.impersonatedEmail());
    };

    EXPECT_EQ(email(ADCType::impersonatedServiceAccount, u"robot@p"_s),
              std::pair(true, u"robot@p"_s));
    EXPECT_EQ(email(ADCType::impersonatedServiceAccount, std::nullopt), std::pair(false, u""_s));
    EXPECT_EQ(email(ADCType::serviceAccountKey, u"robot@p"_s), std::pair(false, u""_s));
    EXPECT_EQ(email(ADCType::none, u"robot@p"_s), std::pair(false, u""_s));
}

} // namespace torvi
