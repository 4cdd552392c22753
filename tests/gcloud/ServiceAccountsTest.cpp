// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudTest.h"

using namespace Qt::StringLiterals;

namespace torvi {

using GCloudServiceAccountsTest = GCloudTest;

TEST_F(GCloudServiceAccountsTest, AreThoseThatGCloudLists)
{
    const Ended ended = torvictl({ u"service-accounts"_s, u"orchard-prod-5150"_s, u"--json"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output,
              R"([{"email":"deployer@orchard-prod-5150.iam.gserviceaccount.com",)"
              R"("projectId":"orchard-prod-5150","displayName":"Deployment robot"},)"
              R"({"email":"reader@orchard-prod-5150.iam.gserviceaccount.com",)"
              R"("projectId":"orchard-prod-5150","displayName":"Übersicht ☂"},)"
              R"({"email":"plain@orchard-prod-5150.iam.gserviceaccount.com",)"
              R"("projectId":"orchard-prod-5150","displayName":null}])"
              "\n");
    const QJsonArray listed
        = ask({ u"iam"_s, u"service-accounts"_s, u"list"_s, u"--project=orchard-prod-5150"_s })
              .array();
    ASSERT_EQ(listed.size(), 3);
    EXPECT_EQ(listed[1].toObject()[u"displayName"], u"Übersicht ☂"_s);
}

TEST_F(GCloudServiceAccountsTest, KeepTheirNamesInTheCLocale)
{
    environment.insert(u"LC_ALL"_s, u"C"_s);

    const Ended ended = torvictl({ u"service-accounts"_s, u"orchard-prod-5150"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_TRUE(ended.output.contains("Übersicht ☂")) << ended.output.toStdString();
}

TEST_F(GCloudServiceAccountsTest, AreNoneWhereAProjectHasNone)
{
    EXPECT_EQ(list({ u"service-accounts"_s, u"orchard-stage-5150"_s }), QJsonArray());
}

TEST_F(GCloudServiceAccountsTest, AreAnEmptyListForAProjectOfOthers)
{
    const Ended ended = torvictl({ u"service-accounts"_s, u"labs-shared-3142"_s, u"--json"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output, "[]\n");
    EXPECT_EQ(status()[u"lastError"], QJsonValue::Null);
}

TEST_F(GCloudServiceAccountsTest, AreAnEmptyListWhereTheApiIsDisabledAndGCloudWouldAsk)
{
    const Ended ended = torvictl({ u"service-accounts"_s, u"orchard-data-5150"_s, u"--json"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output, "[]\n");
}

TEST_F(GCloudServiceAccountsTest, AreAnEmptyListWithoutANetwork)
{
    forgetAccessTokens();
    google->goDown();

    const Ended ended = torvictl({ u"service-accounts"_s, u"orchard-prod-5150"_s, u"--json"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output, "[]\n");
}

TEST_F(GCloudServiceAccountsTest, CanBeSavedAndForgotten)
{
    const QString email = list({ u"service-accounts"_s, u"orchard-prod-5150"_s })[0]
                              .toObject()[u"email"]
                              .toString();

    ASSERT_TRUE(exitedWith(0,
                           torvictl({ u"save-account"_s, email, u"--project"_s,
                                      u"orchard-prod-5150"_s, u"--label"_s, u"größer"_s })));
    const QJsonArray saved = list({ u"saved-accounts"_s, u"orchard-prod-5150"_s });
    ASSERT_TRUE(exitedWith(
        0, torvictl({ u"forget-account"_s, email, u"--project"_s, u"orchard-prod-5150"_s })));

    ASSERT_EQ(saved.size(), 1);
    EXPECT_EQ(saved[0].toObject()[u"email"], email);
    EXPECT_EQ(saved[0].toObject()[u"displayName"], u"größer"_s);
    EXPECT_EQ(list({ u"saved-accounts"_s, u"orchard-prod-5150"_s }), QJsonArray());
}

} // namespace torvi
