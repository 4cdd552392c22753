// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/EnvironmentOverride.h"

#include "tests/support/FakeConfigReader.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace torvi {

class EnvironmentOverrideTest : public testing::Test
{
protected:
    FakeConfigReader files;
    QProcessEnvironment environment;

    EnvironmentOverrideTest()
    {
        files.properties[u"default"_s]
            = { u"orchid"_s, u"ada@example.com"_s, std::nullopt, std::nullopt, std::nullopt };
    }

    QList<EnvironmentOverride> all(const QString &variable, const QString &value)
    {
        environment.insert(variable, value);
        return EnvironmentOverride::all(files, environment);
    }
};

TEST_F(EnvironmentOverrideTest, AnEnvironmentWithoutTheVariablesReadsNothing)
{
    environment.insert(u"CLOUDSDK_CORE_DISABLE_PROMPTS"_s, u"1"_s);

    EXPECT_THAT(EnvironmentOverride::all(files, environment), IsEmpty());
    EXPECT_EQ(files.reads, QStringList());
}

TEST_F(EnvironmentOverrideTest, AnotherConfigurationIsOne)
{
    EXPECT_THAT(all(u"CLOUDSDK_ACTIVE_CONFIG_NAME"_s, u"staging"_s),
                ElementsAre(EnvironmentOverride{ u"CLOUDSDK_ACTIVE_CONFIG_NAME"_s, u"staging"_s }));
}

TEST_F(EnvironmentOverrideTest, TheActiveConfigurationIsNone)
{
    EXPECT_THAT(all(u"CLOUDSDK_ACTIVE_CONFIG_NAME"_s, u"default"_s), IsEmpty());
}

TEST_F(EnvironmentOverrideTest, AnEmptyConfigurationNameIsIgnoredByGcloud)
{
    EXPECT_THAT(all(u"CLOUDSDK_ACTIVE_CONFIG_NAME"_s, u""_s), IsEmpty());
}

TEST_F(EnvironmentOverrideTest, AnotherProjectIsOne)
{
    EXPECT_THAT(all(u"CLOUDSDK_CORE_PROJECT"_s, u"orchid-2"_s),
                ElementsAre(EnvironmentOverride{ u"CLOUDSDK_CORE_PROJECT"_s, u"orchid-2"_s }));
}

TEST_F(EnvironmentOverrideTest, TheActiveProjectIsNone)
{
    EXPECT_THAT(all(u"CLOUDSDK_CORE_PROJECT"_s, u"orchid"_s), IsEmpty());
}

TEST_F(EnvironmentOverrideTest, AnEmptyProjectTakesTheFilesProjectAway)
{
    EXPECT_THAT(all(u"CLOUDSDK_CORE_PROJECT"_s, u""_s),
                ElementsAre(EnvironmentOverride{ u"CLOUDSDK_CORE_PROJECT"_s, u""_s }));

    files.properties.clear();

    EXPECT_THAT(EnvironmentOverride::all(files, environment), IsEmpty());
}

TEST_F(EnvironmentOverrideTest, ThePropertiesAreThoseOfTheConfigurationThatIsShown)
{
    files.activeName = u"labs"_s;
    files.properties[u"labs"_s].project = u"greenhouse"_s;

    EXPECT_THAT(all(u"CLOUDSDK_CORE_PROJECT"_s, u"greenhouse"_s), IsEmpty());
    EXPECT_THAT(all(u"CLOUDSDK_CORE_PROJECT"_s, u"orchid"_s), testing::SizeIs(1));
}

TEST_F(EnvironmentOverrideTest, AnotherAccountIsOne)
{
    EXPECT_THAT(
        all(u"CLOUDSDK_CORE_ACCOUNT"_s, u"bob@example.com"_s),
        ElementsAre(EnvironmentOverride{ u"CLOUDSDK_CORE_ACCOUNT"_s, u"bob@example.com"_s }));
}

TEST_F(EnvironmentOverrideTest, TheActiveAccountIsNoneAlsoWhenItHasNoCredentials)
{
    EXPECT_THAT(all(u"CLOUDSDK_CORE_ACCOUNT"_s, u"ada@example.com"_s), IsEmpty());
}

TEST_F(EnvironmentOverrideTest, OtherCredentialsAreOne)
{
    EXPECT_THAT(all(u"GOOGLE_APPLICATION_CREDENTIALS"_s, u"/keys/robot.json"_s),
                ElementsAre(EnvironmentOverride{ u"GOOGLE_APPLICATION_CREDENTIALS"_s,
                                                 u"/keys/robot.json"_s }));
}

TEST_F(EnvironmentOverrideTest, GcloudsOwnCredentialsFileIsNoneHoweverItsPathIsWritten)
{
    const QString file = files.configDirectory() + u"/application_default_credentials.json"_s;

    EXPECT_THAT(all(u"GOOGLE_APPLICATION_CREDENTIALS"_s, file), IsEmpty());
    EXPECT_THAT(all(u"GOOGLE_APPLICATION_CREDENTIALS"_s,
                    files.configDirectory() + u"//logs/../application_default_credentials.json"_s),
                IsEmpty());
}

TEST_F(EnvironmentOverrideTest, EmptyCredentialsAreNone)
{
    EXPECT_THAT(all(u"GOOGLE_APPLICATION_CREDENTIALS"_s, u""_s), IsEmpty());
}

TEST_F(EnvironmentOverrideTest, WhatCannotBeComparedIsLeftOut)
{
    files.failingRead = u"properties of default"_s;
    environment.insert(u"GOOGLE_APPLICATION_CREDENTIALS"_s, u"/keys/robot.json"_s);

    const QList<EnvironmentOverride> overrides = all(u"CLOUDSDK_CORE_PROJECT"_s, u"x"_s);

    EXPECT_THAT(overrides,
                ElementsAre(testing::Field(&EnvironmentOverride::variable,
                                           u"GOOGLE_APPLICATION_CREDENTIALS"_s)));
}

TEST_F(EnvironmentOverrideTest, AllAreFoundAndDescribedInTheirOrder)
{
    environment.insert(u"GOOGLE_APPLICATION_CREDENTIALS"_s, u"/k.json"_s);
    environment.insert(u"CLOUDSDK_CORE_ACCOUNT"_s, u"%1@example.com"_s);
    environment.insert(u"CLOUDSDK_CORE_PROJECT"_s, u"p"_s);
    environment.insert(u"CLOUDSDK_ACTIVE_CONFIG_NAME"_s, u"labs"_s);

    QStringList descriptions;
    for (const EnvironmentOverride &each : EnvironmentOverride::all(files, environment)) {
        descriptions.append(each.description());
    }

    EXPECT_EQ(
        descriptions,
        QStringList({
            u"CLOUDSDK_ACTIVE_CONFIG_NAME makes gcloud use the configuration \"labs\"."_s,
            u"CLOUDSDK_CORE_PROJECT makes gcloud use the project \"p\"."_s,
            u"CLOUDSDK_CORE_ACCOUNT makes gcloud use the account \"%1@example.com\"."_s,
            u"GOOGLE_APPLICATION_CREDENTIALS makes code use the credentials in \"/k.json\"."_s,
        }));
}

} // namespace torvi
