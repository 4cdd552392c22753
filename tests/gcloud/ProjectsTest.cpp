// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudTest.h"

using namespace Qt::StringLiterals;

namespace torvi {

using GCloudProjectsTest = GCloudTest;

namespace {

const QString kReader = u"reader@orchard-prod-5150.iam.gserviceaccount.com"_s;

QStringList ids(const QJsonArray &projects)
{
    QStringList result;
    for (const QJsonValue &project : projects) {
        result.append(project[u"id"].toString());
    }
    return result;
}

} // namespace

TEST_F(GCloudProjectsTest, AreThoseThatGCloudListsInItsOrder)
{
    const QJsonArray shown = list({ u"projects"_s });

    const QJsonArray listed = ask({ u"projects"_s, u"list"_s, u"--sort-by=projectId"_s }).array();
    ASSERT_EQ(listed.size(), 5);
    ASSERT_EQ(shown.size(), listed.size());
    for (qsizetype i = 0; i < listed.size(); ++i) {
        const QJsonObject expected = listed[i].toObject();
        EXPECT_EQ(shown[i].toObject()[u"id"], expected[u"projectId"]);
        EXPECT_EQ(shown[i].toObject()[u"name"], expected[u"name"]);
        EXPECT_EQ(shown[i].toObject()[u"projectNumber"], expected[u"projectNumber"]);
    }
}

TEST_F(GCloudProjectsTest, ComeFromAllPages)
{
    EXPECT_EQ(
        ids(list({ u"projects"_s })),
        QStringList({ u"example.com:old-billing"_s, u"orchard-data-5150"_s, u"orchard-prod-5150"_s,
                      u"orchard-stage-5150"_s, u"zz-cafe-demo-0002"_s }));
    EXPECT_EQ(google->callers(u"/v1/projects"_s),
              QStringList({ u"dana@example.com"_s, u"dana@example.com"_s }));
    EXPECT_EQ(runs(), QStringList{ u"projects list --format=json --sort-by=projectId"_s });
}

TEST_F(GCloudProjectsTest, HaveTheirFieldsInOrder)
{
    const Ended projects = torvictl({ u"projects"_s, u"--json"_s });

    EXPECT_TRUE(projects.output.contains(
        R"({"id":"zz-cafe-demo-0002","name":"Café démo ☕","projectNumber":"771000000007",)"
        R"("isPinned":false,"lastUsed":null})"))
        << projects.output.toStdString();
    EXPECT_EQ(projects.output.count('\n'), 1);
}

TEST_F(GCloudProjectsTest, KeepTheirNamesInTheCLocale)
{
    environment.insert(u"LANG"_s, u"C"_s);
    environment.insert(u"LC_ALL"_s, u"C"_s);

    const Ended json = torvictl({ u"projects"_s, u"--json"_s });
    const Ended text = torvictl({ u"projects"_s });

    EXPECT_TRUE(json.output.contains("Orchard – Daten & Berichte")) << json.output.toStdString();
    EXPECT_TRUE(text.output.contains("Orchard – Daten & Berichte")) << text.output.toStdString();
}

TEST_F(GCloudProjectsTest, KnowWhichArePinned)
{
    ASSERT_TRUE(exitedWith(0, torvictl({ u"pin"_s, u"orchard-data-5150"_s })));

    const QJsonArray projects = list({ u"projects"_s });

    EXPECT_TRUE(projects[1].toObject()[u"isPinned"].toBool());
    EXPECT_FALSE(projects[2].toObject()[u"isPinned"].toBool());
}

TEST_F(GCloudProjectsTest, AreTheImpersonatedAccountsWhileImpersonating)
{
    ASSERT_TRUE(exitedWith(
        0, gcloud({ u"config"_s, u"set"_s, u"auth/impersonate_service_account"_s, kReader })));

    EXPECT_EQ(ids(list({ u"projects"_s })), QStringList{ u"orchard-data-5150"_s });
    EXPECT_EQ(google->callers(u"/v1/projects"_s), QStringList{ kReader });
}

TEST_F(GCloudProjectsTest, FailWithGCloudsReasonWhenTheAccountMayNotBeImpersonated)
{
    ASSERT_TRUE(exitedWith(0,
                           gcloud({ u"config"_s, u"set"_s, u"auth/impersonate_service_account"_s,
                                    u"nobody@orchard-prod-5150.iam.gserviceaccount.com"_s })));

    const Ended projects = torvictl({ u"projects"_s, u"--json"_s });

    ASSERT_TRUE(exitedWith(1, projects));
    EXPECT_TRUE(projects.errors.contains("gcloud command failed (exit 1): "));
    EXPECT_TRUE(projects.errors.contains("roles/iam.serviceAccountTokenCreator"))
        << projects.errors.toStdString();
}

TEST_F(GCloudProjectsTest, FailWithGCloudsReasonWhenForbidden)
{
    google->refuse(u"/v1/projects$"_s, 403);

    const Ended projects = torvictl({ u"projects"_s, u"--json"_s });

    ASSERT_TRUE(exitedWith(1, projects));
    EXPECT_EQ(projects.output, "[]\n");
    EXPECT_TRUE(
        projects.errors.contains("gcloud command failed (exit 1): ERROR: (gcloud.projects.list)"))
        << projects.errors.toStdString();
}

TEST_F(GCloudProjectsTest, FailWithoutANetwork)
{
    forgetAccessTokens();
    google->goDown();

    const Ended projects = torvictl({ u"projects"_s, u"--json"_s });

    ASSERT_TRUE(exitedWith(1, projects));
    EXPECT_EQ(projects.output, "[]\n");
    EXPECT_TRUE(projects.errors.contains("There was a problem refreshing your current auth tokens"))
        << projects.errors.toStdString();
}

TEST_F(GCloudProjectsTest, FailWithoutAnAccount)
{
    ASSERT_TRUE(exitedWith(0, gcloud({ u"config"_s, u"unset"_s, u"account"_s })));

    const Ended projects = torvictl({ u"projects"_s });

    ASSERT_TRUE(exitedWith(1, projects));
    EXPECT_TRUE(projects.errors.contains("You do not currently have an active account selected"))
        << projects.errors.toStdString();
}

} // namespace torvi
