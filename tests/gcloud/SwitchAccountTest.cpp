// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudTest.h"

using namespace Qt::StringLiterals;

namespace torvi {

using GCloudSwitchAccountTest = GCloudTest;

TEST_F(GCloudSwitchAccountTest, IsWhatGCloudThenReports)
{
    const Ended ended = torvictl({ u"switch-account"_s, u"sam@labs.example.com"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output, "");
    EXPECT_EQ(property(u"core"_s, u"account"_s), u"sam@labs.example.com"_s);
    EXPECT_EQ(active(u"activeAccount"_s)[u"email"], u"sam@labs.example.com"_s);
}

TEST_F(GCloudSwitchAccountTest, FetchesTheProjectsOfTheNewAccount)
{
    ASSERT_TRUE(exitedWith(0, torvictl({ u"switch-account"_s, u"sam@labs.example.com"_s })));

    EXPECT_EQ(google->callers(u"/v1/projects"_s), QStringList{ u"sam@labs.example.com"_s });
    EXPECT_EQ(runs(),
              QStringList({ u"config set account sam@labs.example.com"_s,
                            u"projects list --format=json --sort-by=projectId"_s }));
}

TEST_F(GCloudSwitchAccountTest, TakesAServiceAccount)
{
    const QString robot = u"deployer@orchard-prod-5150.iam.gserviceaccount.com"_s;

    ASSERT_TRUE(exitedWith(0, torvictl({ u"switch-account"_s, robot })));

    EXPECT_EQ(property(u"core"_s, u"account"_s), robot);
    EXPECT_EQ(active(u"activeAccount"_s)[u"email"], robot);
    EXPECT_EQ(active(u"activeAccount"_s)[u"accountType"], u"SERVICE_ACCOUNT"_s);
}

TEST_F(GCloudSwitchAccountTest, AnUnknownAccountIsSetAndThenCannotListProjects)
{
    const Ended ended = torvictl({ u"switch-account"_s, u"stranger@example.com"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("does not have any valid credentials"))
        << ended.errors.toStdString();
    EXPECT_EQ(property(u"core"_s, u"account"_s), u"stranger@example.com"_s);
    EXPECT_EQ(active(u"activeAccount"_s), QJsonValue::Null);
}

TEST_F(GCloudSwitchAccountTest, SwitchesWithoutANetworkButListsNoProjects)
{
    forgetAccessTokens();
    google->goDown();

    const Ended ended = torvictl({ u"switch-account"_s, u"sam@labs.example.com"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("ERROR: (gcloud.projects.list)"))
        << ended.errors.toStdString();
    EXPECT_EQ(property(u"core"_s, u"account"_s), u"sam@labs.example.com"_s);
    EXPECT_EQ(active(u"activeAccount"_s)[u"email"], u"sam@labs.example.com"_s);
}

} // namespace torvi
