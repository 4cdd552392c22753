// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudModels/ServiceAccount.h"

#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

TEST(ServiceAccountTest, AbsentAndEmptyDisplayNameDifferInEqualityAndHash)
{
    const ServiceAccount absent{ u"s"_s, u"p"_s, std::nullopt };
    const ServiceAccount empty{ u"s"_s, u"p"_s, u""_s };

    EXPECT_NE(absent, empty);
    EXPECT_NE(qHash(absent), qHash(empty));
}

TEST(ServiceAccountTest, EncodesExactlyItsThreeMembers)
{
    const ServiceAccount account{ u"s"_s, u"p"_s, u"S"_s };

    EXPECT_EQ(account.encoded(),
              (QJsonObject{ { u"email"_s, u"s"_s },
                            { u"projectId"_s, u"p"_s },
                            { u"displayName"_s, u"S"_s } }));
}

TEST(ServiceAccountTest, LeavesAnAbsentDisplayNameOut)
{
    const ServiceAccount account{ u"s"_s, u"p"_s, std::nullopt };

    EXPECT_EQ(account.encoded(),
              (QJsonObject{ { u"email"_s, u"s"_s }, { u"projectId"_s, u"p"_s } }));
}

TEST(ServiceAccountTest, DecodesWithoutDisplayName)
{
    const QJsonObject object{ { u"email"_s, u"s"_s }, { u"projectId"_s, u"p"_s } };

    EXPECT_EQ(ServiceAccount::decoded(object), (ServiceAccount{ u"s"_s, u"p"_s, std::nullopt }));
}

TEST(ServiceAccountTest, DecodesANullDisplayNameAsAbsent)
{
    const QJsonObject object{ { u"email"_s, u"s"_s },
                              { u"projectId"_s, u"p"_s },
                              { u"displayName"_s, QJsonValue(QJsonValue::Null) } };

    EXPECT_EQ(ServiceAccount::decoded(object), (ServiceAccount{ u"s"_s, u"p"_s, std::nullopt }));
}

TEST(ServiceAccountTest, DecodesWhatItEncoded)
{
    const ServiceAccount account{ u"s"_s, u"p"_s, u""_s };

    EXPECT_EQ(ServiceAccount::decoded(account.encoded()), account);
}

TEST(ServiceAccountTest, FailsToDecodeWithoutProjectId)
{
    EXPECT_EQ(ServiceAccount::decoded(QJsonObject{ { u"email"_s, u"s"_s } }), std::nullopt);
}

TEST(ServiceAccountTest, FailsToDecodeWrongTypes)
{
    const QJsonObject number{ { u"email"_s, 1 }, { u"projectId"_s, u"p"_s } };
    const QJsonObject name{ { u"email"_s, u"s"_s },
                            { u"projectId"_s, u"p"_s },
                            { u"displayName"_s, true } };

    EXPECT_EQ(ServiceAccount::decoded(number), std::nullopt);
    EXPECT_EQ(ServiceAccount::decoded(name), std::nullopt);
    EXPECT_EQ(ServiceAccount::decoded(u"text"_s), std::nullopt);
}

} // namespace torvi
