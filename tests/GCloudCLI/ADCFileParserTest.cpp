// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/ADCFileParser.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace torvi {

struct ADCEntry
{
    const char *name;
    QByteArray json;
    ADCState state;
};

class ADCFileParserTest : public testing::TestWithParam<ADCEntry>
{
};

TEST_P(ADCFileParserTest, Parses)
{
    EXPECT_EQ(ADCFileParser::parse(GetParam().json), GetParam().state);
}

namespace {

constexpr std::nullopt_t kAbsent = std::nullopt;

/// The state of a valid file of no known type.
ADCState untyped(std::optional<QString> clientEmail)
{
    return { ADCType::none, std::nullopt, std::move(clientEmail), true };
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Types, ADCFileParserTest,
    testing::Values(ADCEntry{ "user",
                              R"({"type": "authorized_user"})",
                              { ADCType::userCredentials, kAbsent, kAbsent, true } },
                    ADCEntry{ "serviceAccountKey",
                              R"({"type": "service_account", "client_email": "robot-1"})",
                              { ADCType::serviceAccountKey, kAbsent, u"robot-1"_s, true } },
                    ADCEntry{ "impersonated",
                              R"({"type": "impersonated_service_account"})",
                              { ADCType::impersonatedServiceAccount, kAbsent, kAbsent, true } },
                    ADCEntry{ "literallyNone", R"({"type": "none"})", untyped(kAbsent) },
                    ADCEntry{ "external", R"({"type": "external_account"})", untyped(kAbsent) },
                    ADCEntry{ "inAnotherCase", R"({"type": "Authorized_User"})", untyped(kAbsent) },
                    ADCEntry{ "noString", R"({"type": 1})", untyped(kAbsent) },
                    ADCEntry{ "null", R"({"type": null})", untyped(kAbsent) },
                    ADCEntry{ "missing", "{}", untyped(kAbsent) },
                    ADCEntry{ "behindAByteOrderMark", "\xEF\xBB\xBF{}", untyped(kAbsent) }),
    [](const auto &entry) { return entry.param.name; });

INSTANTIATE_TEST_SUITE_P(
    NoObjects, ADCFileParserTest,
    testing::Values(ADCEntry{ "array", "[]", {} }, ADCEntry{ "arrayOfAnObject", "[{}]", {} },
                    ADCEntry{ "string", "\"authorized_user\"", {} }, ADCEntry{ "number", "1", {} },
                    ADCEntry{ "longNumber", "123456789012345678901234567890\n", {} },
                    ADCEntry{ "boolean", " true ", {} }, ADCEntry{ "null", "null", {} }),
    [](const auto &entry) { return entry.param.name; });

INSTANTIATE_TEST_SUITE_P(
    QuotaProjects, ADCFileParserTest,
    testing::Values(ADCEntry{ "text",
                              R"({"type": "authorized_user", "quota_project_id": "p"})",
                              { ADCType::userCredentials, u"p"_s, kAbsent, true } },
                    ADCEntry{ "emptyText",
                              R"({"quota_project_id": ""})",
                              { ADCType::none, u""_s, kAbsent, true } },
                    ADCEntry{ "noString", R"({"quota_project_id": 12})", untyped(kAbsent) },
                    ADCEntry{ "onlyInANestedObject",
                              R"({"source_credentials": {"quota_project_id": "p"}})",
                              untyped(kAbsent) }),
    [](const auto &entry) { return entry.param.name; });

INSTANTIATE_TEST_SUITE_P(
    ClientEmails, ADCFileParserTest,
    testing::Values(
        ADCEntry{ "empty", R"({"client_email": ""})", untyped(u""_s) },
        ADCEntry{ "inTheAddress",
                  R"({"type": "impersonated_service_account",
                      "service_account_impersonation_url":
                      "https://h/v1/projects/-/serviceAccounts/robot-1:generateAccessToken"})",
                  { ADCType::impersonatedServiceAccount, kAbsent, u"robot-1"_s, true } },
        ADCEntry{ "memberBeforeAddress",
                  R"({"service_account_impersonation_url": "serviceAccounts/a:b",
                      "client_email": "c"})",
                  untyped(u"c"_s) },
        ADCEntry{ "addressWhereTheMemberIsNoString",
                  R"({"service_account_impersonation_url": "serviceAccounts/a:b",
                      "client_email": 1})",
                  untyped(u"a"_s) },
        ADCEntry{ "addressWithoutTheCollection",
                  R"({"type": "impersonated_service_account",
                      "service_account_impersonation_url": "https://h/v1/robot-1:generate"})",
                  { ADCType::impersonatedServiceAccount, kAbsent, kAbsent, true } },
        ADCEntry{ "addressWithoutAColonBehind",
                  R"({"service_account_impersonation_url": "https://h:1/serviceAccounts/a/b"})",
                  untyped(u"a/b"_s) },
        ADCEntry{ "addressThatEndsThere",
                  R"({"service_account_impersonation_url": "serviceAccounts/"})", untyped(u""_s) },
        ADCEntry{ "addressWithTwoCollections",
                  R"({"service_account_impersonation_url": "serviceAccounts/serviceAccounts/a:b"})",
                  untyped(u"serviceAccounts/a"_s) },
        ADCEntry{ "addressThatIsNoString", R"({"service_account_impersonation_url": ["a"]})",
                  untyped(kAbsent) }),
    [](const auto &entry) { return entry.param.name; });

struct BadADCEntry
{
    const char *name;
    QByteArray text;
};

class ADCFileParserErrorTest : public testing::TestWithParam<BadADCEntry>
{
};

TEST_P(ADCFileParserErrorTest, RefusesWhatIsNoJSON)
{
    EXPECT_THROW((void)ADCFileParser::parse(GetParam().text), std::runtime_error);
}

INSTANTIATE_TEST_SUITE_P(Texts, ADCFileParserErrorTest,
                         testing::Values(BadADCEntry{ "empty", "" },
                                         BadADCEntry{ "text", "not json" },
                                         BadADCEntry{ "notANumber", "NaN" },
                                         BadADCEntry{ "notANumberInside", R"({"a": NaN})" },
                                         BadADCEntry{ "textBehind", "{} x" },
                                         BadADCEntry{ "secondObject", "{}{}" },
                                         BadADCEntry{ "cutOff", R"({"type": "authorized_user")" },
                                         BadADCEntry{ "latin1", "{\"a\": \"\xE9\"}" },
                                         BadADCEntry{ "utf16", QByteArray("\xFF\xFE{\0}\0", 6) }),
                         [](const auto &entry) { return entry.param.name; });

} // namespace torvi
