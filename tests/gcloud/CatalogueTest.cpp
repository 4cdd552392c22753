// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/BrowserAuthHandler.h"
#include "GCloudCLI/GCloudJSONParser.h"
#include "GCloudCLI/GCloudPathResolver.h"
#include "GCloudCLI/ProcessExecutor.h"
#include "tests/gcloud/GCloudProcesses.h"
#include "tests/gcloud/GCloudTest.h"

#include <QJsonDocument>
#include <qcoro/qcorotask.h>

#include <mutex>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

void enter(const QProcessEnvironment &environment)
{
    for (const QString &variable : QProcessEnvironment::systemEnvironment().keys()) {
        qunsetenv(variable.toUtf8().constData());
    }
    for (const QString &variable : environment.keys()) {
        qputenv(variable.toUtf8().constData(), environment.value(variable).toUtf8());
    }
}

class AddressCollector : public BrowserAuthHandler
{
public:
    void openAuthURL(const QString &url) override
    {
        const std::lock_guard guard(m_lock);
        m_addresses.append(url);
    }

    QStringList addresses()
    {
        const std::lock_guard guard(m_lock);
        return m_addresses;
    }

private:
    std::mutex m_lock;
    QStringList m_addresses;
};

} // namespace

/// What each command of the catalogue prints can be decoded, and what it does is what it is for.
class GCloudCatalogueTest : public GCloudTest
{
protected:
    void SetUp() override
    {
        GCloudTest::SetUp();
        if (!IsSkipped()) {
            enter(environment);
            executor = std::make_unique<ProcessExecutor>(
                std::make_shared<GCloudPathResolver>(gcloudPath), browser);
        }
    }

    void TearDown() override
    {
        executor.reset();
        enter(original);
        GCloudTest::TearDown();
    }

    GCloudResult run(const GCloudCommand &command)
    {
        return QCoro::waitFor(executor->execute(command));
    }

    /// Standard output of a run that has to succeed.
    QString outputOf(const GCloudCommand &command)
    {
        const GCloudResult result = run(command);
        EXPECT_EQ(result.exitCode, 0) << result.stderr.toStdString();
        return result.stdout;
    }

    const QProcessEnvironment original = QProcessEnvironment::systemEnvironment();
    const std::shared_ptr<AddressCollector> browser = std::make_shared<AddressCollector>();
    std::unique_ptr<ProcessExecutor> executor;
};

TEST_F(GCloudCatalogueTest, ProjectsDecode)
{
    const QList<Project> projects
        = GCloudJSONParser::parseProjects(outputOf(GCloudCommand::listProjects()));

    ASSERT_EQ(projects.size(), 5);
    EXPECT_EQ(projects[0].id, u"example.com:old-billing"_s);
    EXPECT_EQ(projects[1].name, u"Orchard – Daten & Berichte"_s);
    EXPECT_EQ(projects[4].name, u"Café démo ☕"_s);
    EXPECT_EQ(projects[4].projectNumber, u"771000000007"_s);
}

TEST_F(GCloudCatalogueTest, AccountsDecodeAndGCloudTellsNoTypes)
{
    const QList<Account> accounts
        = GCloudJSONParser::parseAccounts(outputOf(GCloudCommand::listAccounts()));

    ASSERT_EQ(accounts.size(), 3);
    EXPECT_EQ(accounts[0].email, u"dana@example.com"_s);
    EXPECT_TRUE(accounts[0].isActive);
    EXPECT_EQ(accounts[1].email, u"deployer@orchard-prod-5150.iam.gserviceaccount.com"_s);
    EXPECT_EQ(accounts[1].accountType, AccountType::user);
    EXPECT_FALSE(accounts[2].isActive);
}

TEST_F(GCloudCatalogueTest, ConfigurationsDecode)
{
    const QList<Configuration> configurations
        = GCloudJSONParser::parseConfigurations(outputOf(GCloudCommand::listConfigurations()));

    ASSERT_EQ(configurations.size(), 3);
    EXPECT_EQ(configurations[0].name, u"default"_s);
    EXPECT_TRUE(configurations[0].isActive);
    EXPECT_EQ(configurations[1].properties.project, u"labs-sandbox-3141"_s);
    EXPECT_EQ(configurations[1].properties.account, u"sam@labs.example.com"_s);
    EXPECT_EQ(configurations[2].properties, ConfigProperties());
}

TEST_F(GCloudCatalogueTest, PropertiesOfTheActiveConfigurationDecode)
{
    const ConfigProperties properties = GCloudJSONParser::parseConfigProperties(
        outputOf(GCloudCommand::getConfigProperties(std::nullopt)));

    EXPECT_EQ(properties.project, u"orchard-prod-5150"_s);
    EXPECT_EQ(properties.account, u"dana@example.com"_s);
    EXPECT_EQ(properties.region, u"europe-west1"_s);
    EXPECT_EQ(properties.zone, std::nullopt);
    EXPECT_EQ(properties.impersonateServiceAccount, std::nullopt);
}

TEST_F(GCloudCatalogueTest, PropertiesOfANamedConfigurationDecode)
{
    const ConfigProperties properties = GCloudJSONParser::parseConfigProperties(
        outputOf(GCloudCommand::getConfigProperties(u"labs"_s)));

    EXPECT_EQ(properties.project, u"labs-sandbox-3141"_s);
    EXPECT_EQ(properties.region, std::nullopt);
}

TEST_F(GCloudCatalogueTest, PropertiesOfAnUnknownConfigurationAreNoErrorButEmpty)
{
    EXPECT_EQ(GCloudJSONParser::parseConfigProperties(
                  outputOf(GCloudCommand::getConfigProperties(u"nowhere"_s))),
              ConfigProperties());
}

TEST_F(GCloudCatalogueTest, ServiceAccountsDecode)
{
    const QString project = u"orchard-prod-5150"_s;
    const QList<ServiceAccount> accounts = GCloudJSONParser::parseServiceAccounts(
        outputOf(GCloudCommand::listServiceAccounts(project)), project);

    ASSERT_EQ(accounts.size(), 3);
    EXPECT_EQ(accounts[1].displayName, u"Übersicht ☂"_s);
    EXPECT_EQ(accounts[1].projectId, project);
    EXPECT_EQ(accounts[2].displayName, std::nullopt);
}

TEST_F(GCloudCatalogueTest, ListsOfAnEmptyDirectoryDecode)
{
    qputenv("CLOUDSDK_CONFIG", scratch.filePath(u"fresh"_s).toUtf8());

    const auto accounts = GCloudJSONParser::parseAccounts(outputOf(GCloudCommand::listAccounts()));
    const auto configurations
        = GCloudJSONParser::parseConfigurations(outputOf(GCloudCommand::listConfigurations()));

    EXPECT_TRUE(accounts.isEmpty());
    ASSERT_EQ(configurations.size(), 1);
    EXPECT_EQ(configurations[0].name, u"default"_s);
}

TEST_F(GCloudCatalogueTest, TheVersionIsJsonThatNamesTheSdk)
{
    const QString version = outputOf(GCloudCommand::version());

    const QJsonDocument document = QJsonDocument::fromJson(version.toUtf8());
    EXPECT_FALSE(document[u"Google Cloud SDK"].toString().isEmpty()) << version.toStdString();
}

TEST_F(GCloudCatalogueTest, AFailureStillPrintsAnEmptyListOfServiceAccounts)
{
    const GCloudResult result = run(GCloudCommand::listServiceAccounts(u"labs-shared-3142"_s));

    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.stdout, u"[]\n"_s);
    EXPECT_TRUE(result.stderr.startsWith(u"ERROR: (gcloud.iam.service-accounts.list)"_s))
        << result.stderr.toStdString();
}

TEST_F(GCloudCatalogueTest, SuccessMayComeWithTextOnStandardError)
{
    const GCloudResult result = run(GCloudCommand::setProject(u"orchard-stage-5150"_s));

    EXPECT_EQ(result, GCloudResult(0, QString(), u"Updated property [core/project].\n"_s));
}

TEST_F(GCloudCatalogueTest, ClearingTheQuotaProjectWorksAndFails)
{
    haveUserADC();

    const GCloudResult result = run(GCloudCommand::clearQuotaProject());

    EXPECT_EQ(result.exitCode, 1);
    const auto file = adcFile();
    ASSERT_TRUE(file.has_value());
    EXPECT_FALSE(file->contains(u"quota_project_id"_s));
}

TEST_F(GCloudCatalogueTest, OneSignInHandsOverOneAddress)
{
    const GCloudResult result = run(GCloudCommand::applicationDefaultLogin());

    EXPECT_EQ(result.exitCode, 0) << result.stderr.toStdString();
    EXPECT_EQ(browser->addresses(), signInAddresses(result.stderr.toUtf8()));
    EXPECT_EQ(browser->addresses().size(), 1);
}

TEST_F(GCloudCatalogueTest, FourQueriesRunSideBySide)
{
    std::vector<QCoro::Task<GCloudResult>> running;
    for (int i = 0; i < 4; ++i) {
        running.push_back(executor->execute(GCloudCommand::listProjects()));
    }

    for (auto &task : running) {
        const GCloudResult result = QCoro::waitFor(task);
        EXPECT_EQ(GCloudJSONParser::parseProjects(result.stdout).size(), 5);
    }
}

TEST_F(GCloudCatalogueTest, NoGCloudOutlivesTheExecutor)
{
    google->hold(u"/v1/projects$"_s);
    auto task = executor->execute(GCloudCommand::listProjects());
    ASSERT_TRUE(google->awaitHeld());

    executor.reset();

    EXPECT_TRUE(waitUntilNoGCloudIsLeft(environment.value(u"CLOUDSDK_CONFIG"_s)));
}

} // namespace torvi
