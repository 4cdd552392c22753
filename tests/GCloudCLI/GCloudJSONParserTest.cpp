// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudJSONParser.h"

#include "tests/support/TestData.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

using namespace GCloudJSONParser;

namespace {

QString printed(const QString &name)
{
    return QString::fromUtf8(testData(u"gcloud-output/"_s + name));
}

Project project(QString id, QString name, std::optional<QString> number)
{
    Project result;
    result.id = std::move(id);
    result.name = std::move(name);
    result.projectNumber = std::move(number);
    return result;
}

ConfigProperties projectAndAccount(std::optional<QString> project, std::optional<QString> account)
{
    ConfigProperties properties;
    properties.project = std::move(project);
    properties.account = std::move(account);
    return properties;
}

} // namespace

TEST(GCloudJSONParserTest, ParsesTheProjectsThatGcloudPrints)
{
    const QList<Project> projects = parseProjects(printed(u"projects.json"_s));

    ASSERT_EQ(projects.size(), 7);
    EXPECT_EQ(projects[0],
              project(u"example.com:legacy-billing"_s, u"Legacy billing (domain-scoped)"_s,
                      u"883301945511"_s));
    EXPECT_EQ(projects[3].name, u"Orchid \u2013 Data & Reports"_s);
    EXPECT_EQ(projects[6],
              project(u"zz-cafe-demo-0001"_s, u"Caf\u00E9 d\u00E9mo \u2615"_s, u"990100200300"_s));
}

TEST(GCloudJSONParserTest, ParsesTheAccountsThatGcloudPrints)
{
    EXPECT_EQ(parseAccounts(printed(u"accounts.json"_s)),
              (QList<Account>{ { u"alex.moreno@example.com"_s, true, AccountType::user },
                               { u"alex@labs.example.com"_s, false, AccountType::user },
                               { u"ci-runner@orchid-staging-4821.iam.gserviceaccount.com"_s, false,
                                 AccountType::user },
                               { u"deployer@orchid-prod-4821.iam.gserviceaccount.com"_s, false,
                                 AccountType::user } }));
}

TEST(GCloudJSONParserTest, ParsesTheConfigurationsThatGcloudPrints)
{
    EXPECT_EQ(parseConfigurations(printed(u"configurations.json"_s)),
              (QList<Configuration>{
                  { u"default"_s, true,
                    projectAndAccount(u"orchid-prod-4821"_s, u"alex.moreno@example.com"_s) },
                  { u"labs"_s, false,
                    projectAndAccount(u"labs-sandbox-7731"_s, u"alex@labs.example.com"_s) },
                  { u"robot"_s, false,
                    projectAndAccount(std::nullopt,
                                      u"deployer@orchid-prod-4821.iam.gserviceaccount.com"_s) },
                  { u"staging"_s, false,
                    projectAndAccount(u"orchid-staging-4821"_s, u"alex.moreno@example.com"_s) } }));
}

TEST(GCloudJSONParserTest, ParsesThePropertiesThatGcloudPrints)
{
    EXPECT_EQ(parseConfigProperties(printed(u"config-properties.json"_s)),
              (ConfigProperties{ u"orchid-staging-4821"_s, u"alex.moreno@example.com"_s,
                                 u"us-central1"_s, std::nullopt,
                                 u"report-reader@orchid-prod-4821.iam.gserviceaccount.com"_s }));
}

TEST(GCloudJSONParserTest, ParsesTheServiceAccountsThatGcloudPrints)
{
    EXPECT_EQ(
        parseServiceAccounts(printed(u"service-accounts.json"_s), u"asked-for"_s),
        (QList<ServiceAccount>{ { u"deployer@orchid-prod-4821.iam.gserviceaccount.com"_s,
                                  u"asked-for"_s, u"Deployment robot"_s },
                                { u"report-reader@orchid-prod-4821.iam.gserviceaccount.com"_s,
                                  u"asked-for"_s, u"Report reader"_s },
                                { u"no-display-name@orchid-prod-4821.iam.gserviceaccount.com"_s,
                                  u"asked-for"_s, std::nullopt } }));
}

TEST(GCloudJSONParserTest, ProjectsKeepTheirOrderAndTheirRepetitions)
{
    EXPECT_EQ(parseProjects(uR"([{"projectId": "b", "name": "B"}, {"projectId": "a", "name": "A"},
                                 {"projectId": "b", "name": "B"}])"_s),
              (QList<Project>{ project(u"b"_s, u"B"_s, std::nullopt),
                               project(u"a"_s, u"A"_s, std::nullopt),
                               project(u"b"_s, u"B"_s, std::nullopt) }));
}

TEST(GCloudJSONParserTest, ProjectHasNeitherPinNorLastUse)
{
    const QList<Project> projects = parseProjects(
        uR"([{"projectId": "p", "name": "", "isPinned": true, "lastUsed": "2026-01-01"}])"_s);

    ASSERT_EQ(projects.size(), 1);
    EXPECT_FALSE(projects[0].isPinned);
    EXPECT_EQ(projects[0].lastUsed, std::nullopt);
}

TEST(GCloudJSONParserTest, EmptyTextIsNotAnAbsentOne)
{
    EXPECT_EQ(parseProjects(uR"([{"projectId": "p", "name": "n", "projectNumber": ""}])"_s),
              QList<Project>{ project(u"p"_s, u"n"_s, u""_s) });
    EXPECT_EQ(parseProjects(uR"([{"projectId": "p", "name": "n", "projectNumber": null}])"_s),
              QList<Project>{ project(u"p"_s, u"n"_s, std::nullopt) });
}

TEST(GCloudJSONParserTest, EscapesAndOtherScriptsAreDecoded)
{
    const QList<Project> projects = parseProjects(
        uR"([{"projectId": "p", "name": "a\"\\\/\n\u00e9\ud83d\ude00\u0000z 名"}])"_s);

    ASSERT_EQ(projects.size(), 1);
    EXPECT_EQ(projects[0].name, u"a\"\\/\n\u00E9\U0001F600\0z \u540D"_s);
}

TEST(GCloudJSONParserTest, KeyWrittenWithEscapesIsTheSameKey)
{
    EXPECT_EQ(parseProjects(uR"([{"\u0070rojectId": "p", "name": "n"}])"_s),
              QList<Project>{ project(u"p"_s, u"n"_s, std::nullopt) });
}

TEST(GCloudJSONParserTest, LastOfARepeatedKeyCounts)
{
    EXPECT_EQ(parseProjects(uR"([{"projectId": "p", "name": 1, "name": "n"}])"_s),
              QList<Project>{ project(u"p"_s, u"n"_s, std::nullopt) });
}

TEST(GCloudJSONParserTest, MembersThatAreNotAskedForMayBeAnything)
{
    const QString text = uR"([{"projectId": "p", "name": "n", "projectnumber": 1, "Name": [],
                               "labels": {"name": 1, "projectId": null},
                               "quota": 123456789012345678901234567890}])"_s;

    EXPECT_EQ(parseProjects(text), QList<Project>{ project(u"p"_s, u"n"_s, std::nullopt) });
}

TEST(GCloudJSONParserTest, TenThousandProjectsAllArrive)
{
    QString text = u"["_s;
    for (int i = 0; i < 10'000; ++i) {
        text += u"{\"projectId\": \"p%1\", \"name\": \"\u00FC%1\", \"projectNumber\": \"%1\"},"_s
                    .arg(i);
    }
    text.back() = u']';

    const QList<Project> projects = parseProjects(text);

    ASSERT_EQ(projects.size(), 10'000);
    EXPECT_EQ(projects.last(), project(u"p9999"_s, u"\u00FC9999"_s, u"9999"_s));
}

TEST(GCloudJSONParserTest, AccountTypeAndStatusDecideAndTheDomainDoesNot)
{
    EXPECT_EQ(parseAccounts(uR"([{"account": "a", "status": "", "account_type": "SERVICE_ACCOUNT"},
                           {"account": "r@p.iam.gserviceaccount.com", "status": ""},
                           {"account": "b", "status": "ACTIVE", "account_type": null},
                           {"account": "c", "status": "active", "account_type": "USER"},
                           {"account": "d", "status": "ACTIVE ", "account_type": "service_account"}])"_s),
              (QList<Account>{ { u"a"_s, false, AccountType::serviceAccount },
                               { u"r@p.iam.gserviceaccount.com"_s, false, AccountType::user },
                               { u"b"_s, true, AccountType::user },
                               { u"c"_s, false, AccountType::user },
                               { u"d"_s, false, AccountType::user } }));
}

TEST(GCloudJSONParserTest, ConfigurationMayLackItsProperties)
{
    EXPECT_EQ(parseConfigurations(uR"([{"name": "default", "is_active": true},
                                       {"name": "a", "is_active": false, "properties": null},
                                       {"name": "b", "is_active": false, "properties": {}},
                                       {"name": "c", "is_active": false, "properties": {"core": null}},
                                       {"name": "d", "is_active": false,
                                        "properties": {"core": {"project": null}}}])"_s),
              (QList<Configuration>{ { u"default"_s, true, {} },
                                     { u"a"_s, false, {} },
                                     { u"b"_s, false, {} },
                                     { u"c"_s, false, {} },
                                     { u"d"_s, false, {} } }));
}

TEST(GCloudJSONParserTest, ConfigurationTakesOnlyProjectAndAccountFromTheList)
{
    EXPECT_EQ(parseConfigurations(uR"([{"name": "a", "is_active": true, "properties": {
                  "core": {"project": "p", "account": "e"},
                  "compute": {"region": "r", "zone": 1},
                  "auth": {"impersonate_service_account": "s"}}}])"_s),
              (QList<Configuration>{ { u"a"_s, true, projectAndAccount(u"p"_s, u"e"_s) } }));
}

TEST(GCloudJSONParserTest, PropertiesMayLackAnyLevel)
{
    EXPECT_EQ(parseConfigProperties(u"{}"_s), ConfigProperties());
    EXPECT_EQ(parseConfigProperties(uR"({"core": null, "compute": {"zone": null}, "auth": {}})"_s),
              ConfigProperties());
    EXPECT_EQ(
        parseConfigProperties(
            uR"({"core": {"project": "p"}, "auth": {"impersonate_service_account": "robot-1"}})"_s),
        (ConfigProperties{ u"p"_s, std::nullopt, std::nullopt, std::nullopt, u"robot-1"_s }));
}

TEST(GCloudJSONParserTest, ServiceAccountBelongsToTheProjectThatWasAskedFor)
{
    EXPECT_EQ(parseServiceAccounts(uR"([{"email": "robot-1"}])"_s, u"p"_s),
              (QList<ServiceAccount>{ { u"robot-1"_s, u"p"_s, std::nullopt } }));
    EXPECT_EQ(parseServiceAccounts(uR"([{"email": "robot-1", "projectId": "q"}])"_s, u"p"_s),
              (QList<ServiceAccount>{ { u"robot-1"_s, u"p"_s, std::nullopt } }));
}

} // namespace torvi
