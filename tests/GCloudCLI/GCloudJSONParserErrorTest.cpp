// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudJSONParser.h"
#include "GCloudModels/AppError.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace torvi {

using namespace GCloudJSONParser;

struct ListEntry
{
    const char *name;
    qsizetype (*count)(const QString &text);
};

class GCloudJSONListTest : public testing::TestWithParam<ListEntry>
{
};

TEST_P(GCloudJSONListTest, EmptyArrayIsAnEmptyList)
{
    EXPECT_EQ(GetParam().count(u"[]"_s), 0);
    EXPECT_EQ(GetParam().count(u"[]\n"_s), 0);
}

TEST_P(GCloudJSONListTest, NoOutputIsAnError)
{
    try {
        (void)GetParam().count(u""_s);
        FAIL() << "nothing was thrown";
    } catch (const AppError &error) {
        EXPECT_EQ(error, AppError::parseError(u"Failed to parse JSON: the text is empty"_s));
        EXPECT_EQ(error.errorDescription(),
                  u"Failed to parse gcloud output: Failed to parse JSON: the text is empty"_s);
    }
}

TEST_P(GCloudJSONListTest, TopLevelMustBeAnArrayOfObjects)
{
    for (const QString &text : { u"{}"_s, u"null"_s, u"\"[]\""_s, u"1"_s }) {
        EXPECT_THROW((void)GetParam().count(text), AppError) << text.toStdString();
    }
    EXPECT_THROW((void)GetParam().count(u"[[]]"_s), AppError);
    EXPECT_THROW((void)GetParam().count(u"[null]"_s), AppError);
}

TEST_P(GCloudJSONListTest, TextBehindTheArrayIsAnError)
{
    EXPECT_THROW((void)GetParam().count(u"[] ]"_s), AppError);
    EXPECT_THROW((void)GetParam().count(u"[]\nUpdates are available."_s), AppError);
}

INSTANTIATE_TEST_SUITE_P(
    All, GCloudJSONListTest,
    testing::Values(
        ListEntry{ "projects", [](const QString &text) { return parseProjects(text).size(); } },
        ListEntry{ "accounts", [](const QString &text) { return parseAccounts(text).size(); } },
        ListEntry{ "configurations",
                   [](const QString &text) { return parseConfigurations(text).size(); } },
        ListEntry{ "serviceAccounts",
                   [](const QString &text) { return parseServiceAccounts(text, u"p"_s).size(); } }),
    [](const auto &entry) { return entry.param.name; });

struct BadElementEntry
{
    const char *name;
    void (*parse)(const QString &text);
    QString text;
    std::string error;
};

class GCloudJSONErrorTest : public testing::TestWithParam<BadElementEntry>
{
};

TEST_P(GCloudJSONErrorTest, OneBadElementFailsTheListAndIsNamed)
{
    try {
        GetParam().parse(GetParam().text);
        FAIL() << "nothing was thrown";
    } catch (const AppError &error) {
        EXPECT_EQ(error.what(),
                  "Failed to parse gcloud output: Failed to parse JSON: " + GetParam().error);
    }
}

namespace {

void parseAsProjects(const QString &text)
{
    (void)parseProjects(text);
}

void parseAsAccounts(const QString &text)
{
    (void)parseAccounts(text);
}

void parseAsConfigurations(const QString &text)
{
    (void)parseConfigurations(text);
}

void parseAsServiceAccounts(const QString &text)
{
    (void)parseServiceAccounts(text, u"p"_s);
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Projects, GCloudJSONErrorTest,
    testing::Values(
        BadElementEntry{ "noArray", parseAsProjects, u"{}"_s, "the top level must be an array" },
        BadElementEntry{ "noObject", parseAsProjects,
                         u"[{\"projectId\": \"p\", \"name\": \"n\"}, 1]"_s,
                         "element 2 must be an object" },
        BadElementEntry{ "noId", parseAsProjects, uR"([{"name": "n"}])"_s,
                         "element 1: \"projectId\" is missing" },
        BadElementEntry{ "noNameInALaterElement", parseAsProjects,
                         uR"([{"projectId": "p", "name": "n"}, {"projectId": "p", "name": "n"},
                              {"projectId": "q"}])"_s,
                         "element 3: \"name\" is missing" },
        BadElementEntry{ "nullName", parseAsProjects, uR"([{"projectId": "p", "name": null}])"_s,
                         "element 1: \"name\" must be a string" },
        BadElementEntry{ "numberAsANumber", parseAsProjects, uR"([{"projectId": "p", "name": "n"},
                              {"projectId": "p", "name": "n", "projectNumber": 12}])"_s,
                         "element 2: \"projectNumber\" must be a string" },
        BadElementEntry{ "keyInAnotherCase", parseAsProjects,
                         uR"([{"projectID": "p", "name": "n"}])"_s,
                         "element 1: \"projectId\" is missing" },
        BadElementEntry{ "syntaxErrorBehindGoodElements", parseAsProjects,
                         u"[{\"projectId\": \"p\", \"name\": \"n\"},\n]"_s,
                         "object is missing after a comma at line 2, column 2" },
        BadElementEntry{ "unclosedEnd", parseAsProjects, uR"([{"projectId": "p", "name": "n"})"_s,
                         "unterminated array at line 1, column 33" }),
    [](const auto &entry) { return entry.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Accounts, GCloudJSONErrorTest,
    testing::Values(BadElementEntry{ "noAccount", parseAsAccounts, uR"([{"status": ""}])"_s,
                                     "element 1: \"account\" is missing" },
                    BadElementEntry{ "noStatus", parseAsAccounts, uR"([{"account": "a"}])"_s,
                                     "element 1: \"status\" is missing" },
                    BadElementEntry{ "statusAsABoolean", parseAsAccounts,
                                     uR"([{"account": "a", "status": true}])"_s,
                                     "element 1: \"status\" must be a string" },
                    BadElementEntry{ "typeAsANumber", parseAsAccounts,
                                     uR"([{"account": "a", "status": "", "account_type": 1}])"_s,
                                     "element 1: \"account_type\" must be a string" }),
    [](const auto &entry) { return entry.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Configurations, GCloudJSONErrorTest,
    testing::Values(
        BadElementEntry{ "noName", parseAsConfigurations, uR"([{"is_active": true}])"_s,
                         "element 1: \"name\" is missing" },
        BadElementEntry{ "notActiveOrInactive", parseAsConfigurations, uR"([{"name": "a"}])"_s,
                         "element 1: \"is_active\" is missing" },
        BadElementEntry{ "activeAsAString", parseAsConfigurations,
                         uR"([{"name": "a", "is_active": "true"}])"_s,
                         "element 1: \"is_active\" must be true or false" },
        BadElementEntry{ "activeAsANumber", parseAsConfigurations,
                         uR"([{"name": "a", "is_active": 1}])"_s,
                         "element 1: \"is_active\" must be true or false" },
        BadElementEntry{ "propertiesAsAnArray", parseAsConfigurations,
                         uR"([{"name": "a", "is_active": true, "properties": []}])"_s,
                         "element 1: \"properties\" must be an object" },
        BadElementEntry{ "coreAsAString", parseAsConfigurations,
                         uR"([{"name": "a", "is_active": true, "properties": {"core": ""}}])"_s,
                         "element 1: \"properties\".\"core\" must be an object" },
        BadElementEntry{
            "accountAsANumber", parseAsConfigurations,
            uR"([{"name": "a", "is_active": true, "properties": {"core": {"account": 1}}}])"_s,
            "element 1: \"properties\".\"core\".\"account\" must be a string" }),
    [](const auto &entry) { return entry.param.name; });

INSTANTIATE_TEST_SUITE_P(ServiceAccounts, GCloudJSONErrorTest,
                         testing::Values(BadElementEntry{ "noEmail", parseAsServiceAccounts,
                                                          uR"([{"displayName": "d"}])"_s,
                                                          "element 1: \"email\" is missing" },
                                         BadElementEntry{
                                             "displayNameAsAnObject", parseAsServiceAccounts,
                                             uR"([{"email": "e", "displayName": {}}])"_s,
                                             "element 1: \"displayName\" must be a string" }),
                         [](const auto &entry) { return entry.param.name; });

struct BadPropertiesEntry
{
    const char *name;
    QString text;
    std::string error;
};

class GCloudJSONPropertiesErrorTest : public testing::TestWithParam<BadPropertiesEntry>
{
};

TEST_P(GCloudJSONPropertiesErrorTest, PassesTheDecodersOwnError)
{
    try {
        (void)parseConfigProperties(GetParam().text);
        FAIL() << "nothing was thrown";
    } catch (const AppError &error) {
        FAIL() << "wrapped: " << error.what();
    } catch (const std::runtime_error &error) {
        EXPECT_EQ(error.what(), GetParam().error);
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, GCloudJSONPropertiesErrorTest,
    testing::Values(
        BadPropertiesEntry{ "empty", u""_s, "the text is empty" },
        BadPropertiesEntry{ "array", u"[]"_s, "the top level must be an object" },
        BadPropertiesEntry{ "coreAsAString", uR"({"core": ""})"_s, "\"core\" must be an object" },
        BadPropertiesEntry{ "zoneAsANumber", uR"({"compute": {"zone": 1}})"_s,
                            "\"compute\".\"zone\" must be a string" },
        BadPropertiesEntry{ "impersonationAsABoolean",
                            uR"({"auth": {"impersonate_service_account": false}})"_s,
                            "\"auth\".\"impersonate_service_account\" must be a string" },
        BadPropertiesEntry{ "textBehindTheObject", u"{} {}"_s,
                            "garbage at the end of the document at line 1, column 4" }),
    [](const auto &entry) { return entry.param.name; });

} // namespace torvi
