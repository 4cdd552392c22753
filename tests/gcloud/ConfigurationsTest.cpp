// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudTest.h"

using namespace Qt::StringLiterals;

namespace torvi {

using GCloudConfigurationsTest = GCloudTest;

TEST_F(GCloudConfigurationsTest, ActivatedIsWhatGCloudThenReports)
{
    const Ended ended = torvictl({ u"activate-configuration"_s, u"labs"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output, "");
    EXPECT_EQ(activeConfiguration(), u"labs"_s);
    EXPECT_EQ(active(u"activeConfiguration"_s)[u"name"], u"labs"_s);
    EXPECT_EQ(active(u"activeProject"_s)[u"id"], u"labs-sandbox-3141"_s);
    EXPECT_EQ(active(u"activeAccount"_s)[u"email"], u"sam@labs.example.com"_s);
}

TEST_F(GCloudConfigurationsTest, ActivatingAnUnknownOneChangesNothing)
{
    const Ended ended = torvictl({ u"activate-configuration"_s, u"nowhere"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(
        ended.errors.contains("Cannot activate configuration [nowhere], it does not exist."))
        << ended.errors.toStdString();
    EXPECT_EQ(activeConfiguration(), u"default"_s);
}

TEST_F(GCloudConfigurationsTest, ActivatingNeedsNoNetwork)
{
    forgetAccessTokens();
    google->goDown();

    ASSERT_TRUE(exitedWith(0, torvictl({ u"activate-configuration"_s, u"spare"_s })));

    EXPECT_EQ(activeConfiguration(), u"spare"_s);
}

TEST_F(GCloudConfigurationsTest, ActivatingFailsOverABrokenADCFileAndTakesPlaceAllTheSame)
{
    writeFile(configFile(u"application_default_credentials.json"_s), "not json");

    const Ended ended = torvictl({ u"activate-configuration"_s, u"labs"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("ERROR: (gcloud.config.configurations.activate)"))
        << ended.errors.toStdString();
    EXPECT_EQ(readFile(configFile(u"active_config"_s)), "labs");
}

TEST_F(GCloudConfigurationsTest, CreatedIsEmptyAndActiveAsGCloudHasIt)
{
    const Ended ended = torvictl({ u"create-configuration"_s, u"night-build"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output, "");
    EXPECT_EQ(activeConfiguration(), u"night-build"_s);
    EXPECT_EQ(property(u"core"_s, u"account"_s), QJsonValue::Null);
    const QJsonObject shown = status();
    EXPECT_EQ(shown[u"currentContext"][u"activeConfiguration"][u"name"], u"night-build"_s);
    EXPECT_EQ(shown[u"currentContext"][u"activeProject"], QJsonValue::Null);
    EXPECT_EQ(shown[u"configurations"].toArray().size(), 4);
}

TEST_F(GCloudConfigurationsTest, CreatingAnExistingOneChangesNothing)
{
    const Ended ended = torvictl({ u"create-configuration"_s, u"labs"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("Cannot create configuration [labs], it already exists."))
        << ended.errors.toStdString();
    EXPECT_EQ(activeConfiguration(), u"default"_s);
}

TEST_F(GCloudConfigurationsTest, CreatingOneWithABadNameSaysWhy)
{
    const Ended ended = torvictl({ u"create-configuration"_s, u"My_Config"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("Invalid name [My_Config] for a configuration."))
        << ended.errors.toStdString();
    EXPECT_EQ(ask({ u"config"_s, u"configurations"_s, u"list"_s }).array().size(), 3);
}

TEST_F(GCloudConfigurationsTest, DeletedIsGone)
{
    const Ended ended = torvictl({ u"delete-configuration"_s, u"labs"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output, "");
    const QJsonArray left = ask({ u"config"_s, u"configurations"_s, u"list"_s }).array();
    ASSERT_EQ(left.size(), 2);
    EXPECT_EQ(left[0].toObject()[u"name"], u"default"_s);
    EXPECT_EQ(left[1].toObject()[u"name"], u"spare"_s);
    EXPECT_EQ(status()[u"configurations"].toArray().size(), 2);
}

TEST_F(GCloudConfigurationsTest, TheActiveOneCannotBeDeleted)
{
    const Ended ended = torvictl({ u"delete-configuration"_s, u"default"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("Deleting named configuration failed because configuration "
                                      "[default] is set as active."))
        << ended.errors.toStdString();
    EXPECT_EQ(activeConfiguration(), u"default"_s);
}

TEST_F(GCloudConfigurationsTest, DeletingAnUnknownOneFails)
{
    const Ended ended = torvictl({ u"delete-configuration"_s, u"nowhere"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("[nowhere]")) << ended.errors.toStdString();
}

TEST_F(GCloudConfigurationsTest, ABrokenFileFailsWithTheWholeTraceback)
{
    writeFile(configFile(u"configurations/config_default"_s), "no section\n");

    const Ended ended = torvictl({ u"activate-configuration"_s, u"labs"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("ERROR: gcloud failed to load"))
        << ended.errors.toStdString();
    EXPECT_TRUE(ended.errors.contains("Traceback")) << ended.errors.toStdString();
}

} // namespace torvi
