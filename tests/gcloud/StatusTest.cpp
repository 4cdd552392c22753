// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudTest.h"

using namespace Qt::StringLiterals;

namespace torvi {

using GCloudStatusTest = GCloudTest;

TEST_F(GCloudStatusTest, IsExactlyThisForTheSignedInDirectory)
{
    haveUserADC();

    const Ended status = torvictl({ u"status"_s, u"--json"_s });

    ASSERT_TRUE(exitedWith(0, status));
    EXPECT_EQ(
        status.output,
        R"({"currentContext":{"activeProject":{"id":"orchard-prod-5150","name":"orchard-prod-5150",)"
        R"("projectNumber":null,"isPinned":false,"lastUsed":null},)"
        R"("activeAccount":{"email":"dana@example.com","isActive":true,"accountType":"USER"},)"
        R"("activeConfiguration":{"name":"default","isActive":true,"properties":{)"
        R"("project":"orchard-prod-5150","account":"dana@example.com","region":"europe-west1",)"
        R"("zone":null,"impersonateServiceAccount":null}},"impersonatedServiceAccount":null,)"
        R"("adcState":{"type":"authorized_user","quotaProject":"orchard-prod-5150",)"
        R"("clientEmail":null,"isValid":true}},)"
        R"("accounts":[{"email":"dana@example.com","isActive":true,"accountType":"USER"},)"
        R"({"email":"deployer@orchard-prod-5150.iam.gserviceaccount.com","isActive":false,)"
        R"("accountType":"SERVICE_ACCOUNT"},)"
        R"({"email":"sam@labs.example.com","isActive":false,"accountType":"USER"}],)"
        R"("configurations":[{"name":"default","isActive":true,"properties":{)"
        R"("project":"orchard-prod-5150","account":"dana@example.com","region":"europe-west1",)"
        R"("zone":null,"impersonateServiceAccount":null}},)"
        R"({"name":"labs","isActive":false,"properties":{"project":"labs-sandbox-3141",)"
        R"("account":"sam@labs.example.com","region":null,"zone":null,)"
        R"("impersonateServiceAccount":null}},)"
        R"({"name":"spare","isActive":false,"properties":{"project":null,"account":null,)"
        R"("region":null,"zone":null,"impersonateServiceAccount":null}}],"lastError":null})"
        "\n");
}

TEST_F(GCloudStatusTest, ConfigurationsAreThoseThatGCloudLists)
{
    const QJsonArray shown = status()[u"configurations"].toArray();

    const QJsonArray listed = ask({ u"config"_s, u"configurations"_s, u"list"_s }).array();
    ASSERT_EQ(shown.size(), listed.size());
    for (qsizetype i = 0; i < listed.size(); ++i) {
        const QJsonObject expected = listed[i].toObject();
        const QJsonObject properties = expected[u"properties"].toObject();
        const QJsonObject actual = shown[i].toObject()[u"properties"].toObject();
        EXPECT_EQ(shown[i].toObject()[u"name"], expected[u"name"]);
        EXPECT_EQ(shown[i].toObject()[u"isActive"], expected[u"is_active"]);
        EXPECT_EQ(actual[u"project"], properties[u"core"][u"project"]);
        EXPECT_EQ(actual[u"account"], properties[u"core"][u"account"]);
        EXPECT_EQ(actual[u"region"], properties[u"compute"][u"region"]);
        EXPECT_EQ(actual[u"zone"], properties[u"compute"][u"zone"]);
    }
}

TEST_F(GCloudStatusTest, AccountsAreThoseThatGCloudLists)
{
    const QJsonArray shown = status()[u"accounts"].toArray();

    const QJsonArray listed = ask({ u"auth"_s, u"list"_s }).array();
    ASSERT_EQ(shown.size(), listed.size());
    for (qsizetype i = 0; i < listed.size(); ++i) {
        EXPECT_EQ(shown[i].toObject()[u"email"], listed[i].toObject()[u"account"]);
        EXPECT_EQ(shown[i].toObject()[u"isActive"].toBool(),
                  listed[i].toObject()[u"status"] == u"ACTIVE"_s);
    }
}

TEST_F(GCloudStatusTest, RunsNoGCloud)
{
    ASSERT_TRUE(exitedWith(0, torvictl({ u"status"_s })));

    EXPECT_EQ(runs(), QStringList());
    EXPECT_EQ(google->requests(), QStringList());
}

TEST_F(GCloudStatusTest, WithoutJsonNamesProjectAndAccountInPlainText)
{
    const Ended status = torvictl({ u"status"_s });

    ASSERT_TRUE(exitedWith(0, status));
    EXPECT_TRUE(status.output.contains("orchard-prod-5150"));
    EXPECT_TRUE(status.output.contains("dana@example.com"));
    EXPECT_FALSE(status.output.contains('\x1b')) << status.output.toStdString();
}

TEST_F(GCloudStatusTest, ShowsTheDefaultConfigurationOfAnEmptyDirectory)
{
    environment.insert(u"CLOUDSDK_CONFIG"_s, scratch.filePath(u"fresh"_s));

    const QJsonObject before = status();
    ASSERT_TRUE(exitedWith(0, gcloud({ u"auth"_s, u"list"_s })));
    const QJsonObject after = status();

    EXPECT_EQ(before[u"configurations"].toArray(), QJsonArray());
    EXPECT_EQ(before[u"lastError"], QJsonValue::Null);
    EXPECT_EQ(after[u"currentContext"][u"activeConfiguration"][u"name"], u"default"_s);
    EXPECT_EQ(after[u"accounts"].toArray(), QJsonArray());
    EXPECT_EQ(after[u"lastError"], QJsonValue::Null);
}

TEST_F(GCloudStatusTest, ShowsNoConfigurationWhenGCloudHasNoneActive)
{
    ASSERT_TRUE(
        exitedWith(0, gcloud({ u"config"_s, u"configurations"_s, u"activate"_s, u"NONE"_s })));

    const QJsonObject context = status()[u"currentContext"].toObject();

    EXPECT_EQ(activeConfiguration(), QString());
    EXPECT_EQ(context[u"activeConfiguration"], QJsonValue::Null);
    EXPECT_EQ(context[u"activeProject"], QJsonValue::Null);
    EXPECT_EQ(context[u"activeAccount"], QJsonValue::Null);
}

TEST_F(GCloudStatusTest, KeepsADoubledPercentSignAsItIsStored)
{
    ASSERT_TRUE(
        exitedWith(0, gcloud({ u"config"_s, u"set"_s, u"account"_s, u"50%@example.com"_s })));

    const QJsonValue account = active(u"activeConfiguration"_s)[u"properties"][u"account"];

    EXPECT_EQ(account, u"50%%@example.com"_s);
}

TEST_F(GCloudStatusTest, AnUnsetPropertyIsAbsentAndAnEmptyOneIsEmpty)
{
    ASSERT_TRUE(exitedWith(0, gcloud({ u"config"_s, u"unset"_s, u"compute/region"_s })));
    ASSERT_TRUE(exitedWith(0, gcloud({ u"config"_s, u"set"_s, u"account"_s, QString() })));

    const QJsonValue properties = active(u"activeConfiguration"_s)[u"properties"];

    EXPECT_EQ(properties[u"region"], QJsonValue::Null);
    EXPECT_EQ(properties[u"account"], u""_s);
    EXPECT_EQ(active(u"activeAccount"_s), QJsonValue::Null);
}

TEST_F(GCloudStatusTest, ShowsWhatWasReadBeforeABrokenADCFile)
{
    writeFile(configFile(u"application_default_credentials.json"_s), "not json");

    const Ended ended = torvictl({ u"status"_s, u"--json"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    const QString message
        = u"Could not read config file: "_s + configFile(u"application_default_credentials.json"_s);
    const QJsonObject shown = QJsonDocument::fromJson(ended.output).object();
    EXPECT_EQ(shown[u"lastError"], message);
    EXPECT_EQ(shown[u"configurations"].toArray(), QJsonArray()); // they come after the ADC file
    EXPECT_TRUE(ended.errors.contains(message.toUtf8())) << ended.errors.toStdString();
}

TEST_F(GCloudStatusTest, ForgetsAnAccountThatIsSignedOut)
{
    ASSERT_TRUE(exitedWith(0, gcloud({ u"auth"_s, u"revoke"_s, u"sam@labs.example.com"_s })));

    const QJsonArray accounts = status()[u"accounts"].toArray();

    ASSERT_EQ(accounts.size(), 2);
    EXPECT_EQ(accounts[0].toObject()[u"email"], u"dana@example.com"_s);
}

TEST_F(GCloudStatusTest, NeverShowsFewerAccountsWhileGCloudWritesThem)
{
    Program writing(u"gcloud"_s,
                    { u"auth"_s, u"activate-service-account"_s, u"--key-file"_s,
                      SignedInDirectory::shared().file(u"key.json"_s) },
                    environment);

    int reads = 0;
    while (writing.isRunning()) {
        const Ended ended = torvictl({ u"status"_s, u"--json"_s });
        const QJsonObject shown = QJsonDocument::fromJson(ended.output).object();
        // gcloud may hold its lock for longer than anybody waits for it; then there is an error.
        EXPECT_EQ(shown[u"accounts"].toArray().size(), ended.exitCode == 0 ? 3 : 0)
            << ended.output.toStdString();
        ++reads;
    }

    EXPECT_TRUE(exitedWith(0, writing.waitForEnd()));
    EXPECT_GT(reads, 0);
}

} // namespace torvi
