// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudCommands.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

struct CatalogueEntry
{
    const char *name;
    GCloudCommand command;
    QStringList arguments;
    bool requiresBrowser = false;
};

class GCloudCommandTest : public testing::TestWithParam<CatalogueEntry>
{
};

TEST_P(GCloudCommandTest, HasItsArgumentsAndItsBrowserFlag)
{
    EXPECT_EQ(GCloudCommands::arguments(GetParam().command), GetParam().arguments);
    EXPECT_EQ(GetParam().command.requiresBrowser(), GetParam().requiresBrowser);
}

INSTANTIATE_TEST_SUITE_P(
    Catalogue, GCloudCommandTest,
    testing::Values(
        CatalogueEntry{ "setProject",
                        GCloudCommand::setProject(u"p"_s),
                        { u"config"_s, u"set"_s, u"project"_s, u"p"_s } },
        CatalogueEntry{ "setProjectWithABlankInOneArgument",
                        GCloudCommand::setProject(u"a b"_s),
                        { u"config"_s, u"set"_s, u"project"_s, u"a b"_s } },
        CatalogueEntry{ "setAccount",
                        GCloudCommand::setAccount(u"a@b"_s),
                        { u"config"_s, u"set"_s, u"account"_s, u"a@b"_s } },
        CatalogueEntry{ "activateConfiguration",
                        GCloudCommand::activateConfiguration(u"c"_s),
                        { u"config"_s, u"configurations"_s, u"activate"_s, u"c"_s } },
        CatalogueEntry{ "createConfiguration",
                        GCloudCommand::createConfiguration(u"c"_s),
                        { u"config"_s, u"configurations"_s, u"create"_s, u"c"_s } },
        CatalogueEntry{ "deleteConfiguration",
                        GCloudCommand::deleteConfiguration(u"c"_s),
                        { u"config"_s, u"configurations"_s, u"delete"_s, u"c"_s, u"--quiet"_s } },
        CatalogueEntry{ "getConfigPropertiesOfTheActiveOne",
                        GCloudCommand::getConfigProperties(std::nullopt),
                        { u"config"_s, u"list"_s, u"--format=json"_s } },
        CatalogueEntry{ "getConfigPropertiesByName",
                        GCloudCommand::getConfigProperties(u"c"_s),
                        { u"config"_s, u"list"_s, u"--configuration=c"_s, u"--format=json"_s } },
        CatalogueEntry{ "getConfigPropertiesByTheEmptyName",
                        GCloudCommand::getConfigProperties(u""_s),
                        { u"config"_s, u"list"_s, u"--configuration="_s, u"--format=json"_s } },
        CatalogueEntry{
            "listServiceAccounts",
            GCloudCommand::listServiceAccounts(u"p"_s),
            { u"iam"_s, u"service-accounts"_s, u"list"_s, u"--project=p"_s, u"--format=json"_s } },
        CatalogueEntry{ "setImpersonation",
                        GCloudCommand::setImpersonation(u"s"_s),
                        { u"config"_s, u"set"_s, u"auth/impersonate_service_account"_s, u"s"_s } },
        CatalogueEntry{ "adcLoginWithImpersonation",
                        GCloudCommand::adcLoginWithImpersonation(u"s"_s),
                        { u"auth"_s, u"application-default"_s, u"login"_s,
                          u"--impersonate-service-account=s"_s, u"--quiet"_s },
                        true },
        CatalogueEntry{ "setQuotaProject",
                        GCloudCommand::setQuotaProject(u"p"_s),
                        { u"auth"_s, u"application-default"_s, u"set-quota-project"_s, u"p"_s } },
        CatalogueEntry{
            "listProjects",
            GCloudCommand::listProjects(),
            { u"projects"_s, u"list"_s, u"--format=json"_s, u"--sort-by=projectId"_s } },
        CatalogueEntry{ "listAccounts",
                        GCloudCommand::listAccounts(),
                        { u"auth"_s, u"list"_s, u"--format=json"_s } },
        CatalogueEntry{ "listConfigurations",
                        GCloudCommand::listConfigurations(),
                        { u"config"_s, u"configurations"_s, u"list"_s, u"--format=json"_s } },
        CatalogueEntry{ "clearImpersonation",
                        GCloudCommand::clearImpersonation(),
                        { u"config"_s, u"unset"_s, u"auth/impersonate_service_account"_s } },
        CatalogueEntry{ "revokeADC",
                        GCloudCommand::revokeADC(),
                        { u"auth"_s, u"application-default"_s, u"revoke"_s, u"--quiet"_s } },
        CatalogueEntry{ "applicationDefaultLogin",
                        GCloudCommand::applicationDefaultLogin(),
                        { u"auth"_s, u"application-default"_s, u"login"_s, u"--quiet"_s },
                        true },
        CatalogueEntry{ "clearQuotaProjectWithAnEmptyLastArgument",
                        GCloudCommand::clearQuotaProject(),
                        { u"auth"_s, u"application-default"_s, u"set-quota-project"_s, u""_s } },
        CatalogueEntry{ "printIdentityToken",
                        GCloudCommand::printIdentityToken(),
                        { u"auth"_s, u"print-identity-token"_s } },
        CatalogueEntry{
            "version", GCloudCommand::version(), { u"version"_s, u"--format=json"_s } }),
    [](const auto &entry) { return entry.param.name; });

TEST(GCloudCommandEqualityTest, ComparesCaseAndPayload)
{
    EXPECT_EQ(GCloudCommand::setProject(u"p"_s), GCloudCommand::setProject(u"p"_s));
    EXPECT_NE(GCloudCommand::setProject(u"p"_s), GCloudCommand::setProject(u"q"_s));
    EXPECT_NE(GCloudCommand::setProject(u"p"_s), GCloudCommand::setQuotaProject(u"p"_s));
    EXPECT_EQ(qHash(GCloudCommand::setProject(u"p"_s)), qHash(GCloudCommand::setProject(u"p"_s)));
}

TEST(GCloudCommandEqualityTest, TellsTheEmptyConfigurationNameFromNone)
{
    EXPECT_NE(GCloudCommand::getConfigProperties(u""_s),
              GCloudCommand::getConfigProperties(std::nullopt));
}

} // namespace torvi
