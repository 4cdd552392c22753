// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudProcesses.h"
#include "tests/gcloud/GCloudTest.h"

#include <csignal>

using namespace Qt::StringLiterals;

namespace torvi {

using GCloudSwitchProjectTest = GCloudTest;

TEST_F(GCloudSwitchProjectTest, IsWhatGCloudThenReports)
{
    const Ended ended = torvictl({ u"switch-project"_s, u"orchard-stage-5150"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output, "");
    EXPECT_EQ(runs(), QStringList{ u"config set project orchard-stage-5150"_s });
    EXPECT_EQ(property(u"core"_s, u"project"_s), u"orchard-stage-5150"_s);
    EXPECT_EQ(active(u"activeProject"_s)[u"id"], u"orchard-stage-5150"_s);
}

TEST_F(GCloudSwitchProjectTest, TakesAnIdWithADomain)
{
    ASSERT_TRUE(exitedWith(0, torvictl({ u"switch-project"_s, u"example.com:old-billing"_s })));

    EXPECT_EQ(property(u"core"_s, u"project"_s), u"example.com:old-billing"_s);
    EXPECT_EQ(list({ u"recents"_s }), QJsonArray{ u"example.com:old-billing"_s });
}

TEST_F(GCloudSwitchProjectTest, PutsTheNewestProjectFirstAmongTheRecents)
{
    for (const QString &id : { u"orchard-data-5150"_s, u"orchard-stage-5150"_s }) {
        ASSERT_TRUE(exitedWith(0, torvictl({ u"switch-project"_s, id })));
    }

    EXPECT_EQ(list({ u"recents"_s }),
              (QJsonArray{ u"orchard-stage-5150"_s, u"orchard-data-5150"_s }));
}

TEST_F(GCloudSwitchProjectTest, SetsAProjectThatNobodyCanSeeAsGCloudDoes)
{
    ASSERT_TRUE(exitedWith(0, torvictl({ u"switch-project"_s, u"no-such-project-1"_s })));

    EXPECT_EQ(property(u"core"_s, u"project"_s), u"no-such-project-1"_s);
    EXPECT_EQ(active(u"activeProject"_s)[u"id"], u"no-such-project-1"_s);
}

TEST_F(GCloudSwitchProjectTest, ChangesNothingWhenGCloudRefusesTheName)
{
    const Ended ended = torvictl({ u"switch-project"_s, u"a b"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains(
        "The project property must be set to a valid project ID, not the project name [a b]"))
        << ended.errors.toStdString();
    EXPECT_EQ(property(u"core"_s, u"project"_s), u"orchard-prod-5150"_s);
    EXPECT_EQ(list({ u"recents"_s }), QJsonArray());
}

TEST_F(GCloudSwitchProjectTest, ChangesNothingWithoutANetwork)
{
    forgetAccessTokens();
    google->goDown();

    const Ended ended = torvictl({ u"switch-project"_s, u"orchard-stage-5150"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("gcloud command failed (exit 1): ERROR: (gcloud.config.set)"))
        << ended.errors.toStdString();
    EXPECT_EQ(property(u"core"_s, u"project"_s), u"orchard-prod-5150"_s);
    EXPECT_EQ(list({ u"recents"_s }), QJsonArray());
}

TEST_F(GCloudSwitchProjectTest, NeedsNoNetworkWithoutAnAccount)
{
    ASSERT_TRUE(exitedWith(0, gcloud({ u"config"_s, u"unset"_s, u"account"_s })));
    google->goDown();

    ASSERT_TRUE(exitedWith(0, torvictl({ u"switch-project"_s, u"orchard-stage-5150"_s })));

    EXPECT_EQ(property(u"core"_s, u"project"_s), u"orchard-stage-5150"_s);
}

TEST_F(GCloudSwitchProjectTest, TheOldProjectIsShownUntilASlowAnswerComes)
{
    google->hold(u"/v1/projects/orchard-stage-5150"_s);
    const auto running = startTorvictl({ u"switch-project"_s, u"orchard-stage-5150"_s });
    ASSERT_TRUE(google->awaitHeld());

    const QJsonValue meanwhile = active(u"activeProject"_s)[u"id"];
    google->release();
    const Ended ended = running->waitForEnd();

    EXPECT_EQ(meanwhile, u"orchard-prod-5150"_s);
    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(active(u"activeProject"_s)[u"id"], u"orchard-stage-5150"_s);
}

TEST_F(GCloudSwitchProjectTest, EndsGCloudWhenInterrupted)
{
    google->hold(u"/v1/projects/orchard-stage-5150"_s);
    const auto running = startTorvictl({ u"switch-project"_s, u"orchard-stage-5150"_s });
    ASSERT_TRUE(google->awaitHeld());

    running->signal(SIGINT);

    EXPECT_TRUE(exitedWith(130, running->waitForEnd()));
    EXPECT_TRUE(waitUntilNoGCloudIsLeft(environment.value(u"CLOUDSDK_CONFIG"_s)));
    google->release();
    EXPECT_EQ(property(u"core"_s, u"project"_s), u"orchard-prod-5150"_s);
}

TEST_F(GCloudSwitchProjectTest, TwoAtOnceBothEnd)
{
    const auto first = startTorvictl({ u"switch-project"_s, u"orchard-stage-5150"_s });
    const auto second = startTorvictl({ u"switch-project"_s, u"orchard-data-5150"_s });

    EXPECT_TRUE(exitedWith(0, first->waitForEnd()));
    EXPECT_TRUE(exitedWith(0, second->waitForEnd()));
    EXPECT_EQ(active(u"activeProject"_s)[u"id"], property(u"core"_s, u"project"_s));
    EXPECT_EQ(runs().size(), 3); // theirs and the question just asked
}

TEST_F(GCloudSwitchProjectTest, ChangesTheConfigurationThatTheEnvironmentNames)
{
    environment.insert(u"CLOUDSDK_ACTIVE_CONFIG_NAME"_s, u"labs"_s);

    ASSERT_TRUE(exitedWith(0, torvictl({ u"switch-project"_s, u"labs-shared-3142"_s })));

    // gcloud obeys the variable; the files, and with them the status, still name "default".
    EXPECT_EQ(property(u"core"_s, u"project"_s), u"labs-shared-3142"_s);
    environment.remove(u"CLOUDSDK_ACTIVE_CONFIG_NAME"_s);
    EXPECT_EQ(property(u"core"_s, u"project"_s), u"orchard-prod-5150"_s);
    EXPECT_EQ(active(u"activeProject"_s)[u"id"], u"orchard-prod-5150"_s);
    EXPECT_EQ(list({ u"recents"_s }), QJsonArray());
}

TEST_F(GCloudSwitchProjectTest, WritesTheFileAlsoUnderAnOverridingVariable)
{
    environment.insert(u"CLOUDSDK_CORE_PROJECT"_s, u"orchard-data-5150"_s);

    ASSERT_TRUE(exitedWith(0, torvictl({ u"switch-project"_s, u"orchard-stage-5150"_s })));

    EXPECT_EQ(property(u"core"_s, u"project"_s), u"orchard-data-5150"_s);
    EXPECT_EQ(active(u"activeProject"_s)[u"id"], u"orchard-stage-5150"_s);
}

} // namespace torvi
