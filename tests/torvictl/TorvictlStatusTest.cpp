// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/torvictl/TorvictlProgram.h"

#include <QFile>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace torvi {

class TorvictlStatusTest : public TorvictlProgram
{
};

TEST_F(TorvictlStatusTest, MissingDirectoryIsAnEmptyContextAndNoError)
{
    const Outcome outcome = run({ u"status"_s, u"--json"_s });

    EXPECT_EQ(outcome.exitCode, 0) << outcome.error.toStdString();
    EXPECT_EQ(outcome.output,
              R"({"currentContext":{"activeProject":null,"activeAccount":null,)"
              R"("activeConfiguration":null,"impersonatedServiceAccount":null,)"
              R"("adcState":{"type":"none","quotaProject":null,"clientEmail":null,)"
              R"("isValid":false}},"accounts":[],"configurations":[],"lastError":null})"
              "\n");
    EXPECT_EQ(outcome.error, "");
}

TEST_F(TorvictlStatusTest, ShowsTheFilesInOneLineOfJson)
{
    writeConfig(u"active_config"_s, "work");
    writeConfig(u"configurations/config_default"_s, "");
    writeConfig(u"configurations/config_work"_s,
                "[core]\naccount = a@x\nproject = größer\n\n[auth]\n"
                "impersonate_service_account = robot@p\n");
    writeConfig(u"application_default_credentials.json"_s,
                R"({"type": "authorized_user", "quota_project_id": "q"})");
    writeAccounts({ u"b@p.iam.gserviceaccount.com"_s, u"a@x"_s });

    const Outcome outcome = run({ u"status"_s, u"--json"_s });

    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output,
              R"({"currentContext":{"activeProject":{"id":"größer","name":"größer",)"
              R"("projectNumber":null,"isPinned":false,"lastUsed":null},)"
              R"("activeAccount":{"email":"a@x","isActive":true,"accountType":"USER"},)"
              R"("activeConfiguration":{"name":"work","isActive":true,"properties":)"
              R"({"project":"größer","account":"a@x","region":null,"zone":null,)"
              R"("impersonateServiceAccount":"robot@p"}},)"
              R"("impersonatedServiceAccount":{"email":"robot@p","projectId":"größer",)"
              R"("displayName":null},)"
              R"("adcState":{"type":"authorized_user","quotaProject":"q","clientEmail":null,)"
              R"("isValid":true}},)"
              R"("accounts":[{"email":"a@x","isActive":true,"accountType":"USER"},)"
              R"({"email":"b@p.iam.gserviceaccount.com","isActive":false,)"
              R"("accountType":"SERVICE_ACCOUNT"}],)"
              R"("configurations":[{"name":"default","isActive":false,"properties":)"
              R"({"project":null,"account":null,"region":null,"zone":null,)"
              R"("impersonateServiceAccount":null}},)"
              R"({"name":"work","isActive":true,"properties":)"
              R"({"project":"größer","account":"a@x","region":null,"zone":null,)"
              R"("impersonateServiceAccount":"robot@p"}}],"lastError":null})"
              "\n");
}

TEST_F(TorvictlStatusTest, NeverRunsGcloud)
{
    run({ u"status"_s });

    EXPECT_EQ(gcloudRuns(), "");
}

TEST_F(TorvictlStatusTest, TextIsTheAlignedRowsWithoutColoursOnAPipe)
{
    writeConfig(u"configurations/config_default"_s,
                "[core]\nproject = p\naccount = a@x\n[auth]\nimpersonate_service_account = s@p\n");

    const Outcome outcome = run({ u"status"_s });

    EXPECT_EQ(outcome.output,
              "Project        p\nAccount        None\nImpersonating  s@p\nADC            Not "
              "configured\n");
}

TEST_F(TorvictlStatusTest, ErrorKeepsWhatWasReadBeforeIt)
{
    writeConfig(u"configurations/config_default"_s, "[core]\nproject = p\n");
    writeConfig(u"credentials.db"_s, "this is no database, but it is long enough to be one......");

    const Outcome outcome = run({ u"status"_s, u"--json"_s });

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.output,
              R"({"currentContext":{"activeProject":null,"activeAccount":null,)"
              R"("activeConfiguration":null,"impersonatedServiceAccount":null,)"
              R"("adcState":{"type":"none","quotaProject":null,"clientEmail":null,)"
              R"("isValid":false}},"accounts":[],"configurations":[{"name":"default",)"
              R"("isActive":true,"properties":{"project":"p","account":null,"region":null,)"
              R"("zone":null,"impersonateServiceAccount":null}}],)"
              R"("lastError":"Failed to parse gcloud output: SQLite prepare failed: )"
              R"(file is not a database"})"
              "\n");
    EXPECT_EQ(outcome.error,
              "Failed to parse gcloud output: SQLite prepare failed: file is not a database\n");
}

TEST_F(TorvictlStatusTest, AFifoInAFilesPlaceBlocksNothing)
{
    writeConfig(u"configurations/config_default"_s, "");
    const QByteArray fifo = path(u".config/gcloud/application_default_credentials.json"_s).toUtf8();
    ASSERT_EQ(mkfifo(fifo.constData(), 0600), 0);

    const Outcome outcome = run({ u"status"_s });

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.error, "Could not read config file: " + fifo + '\n');
}

TEST_F(TorvictlStatusTest, EmptyCloudsdkConfigIsUsedAsItStands)
{
    writeConfig(u"configurations/config_default"_s, "[core]\nproject = p\n");
    environment.insert(u"CLOUDSDK_CONFIG"_s, u""_s);

    const Outcome outcome = run({ u"status"_s });

    EXPECT_TRUE(outcome.output.startsWith("Project  None\n")) << outcome.output.toStdString();
}

TEST_F(TorvictlStatusTest, PlainCLocaleChangesNothing)
{
    writeConfig(u"configurations/config_default"_s, "[core]\nproject = größer\n");
    environment.insert(u"LC_ALL"_s, u"C"_s);

    const Outcome outcome = run({ u"status"_s });

    EXPECT_TRUE(outcome.output.startsWith("Project  größer\n")) << outcome.output.toStdString();
    EXPECT_EQ(outcome.error, "");
}

TEST_F(TorvictlStatusTest, TellsWhatTheEnvironmentOverrides)
{
    writeConfig(u"configurations/config_default"_s, "[core]\nproject = p\n");
    environment.insert(u"CLOUDSDK_ACTIVE_CONFIG_NAME"_s, u"default"_s);
    environment.insert(u"CLOUDSDK_CORE_PROJECT"_s, u"other"_s);
    environment.insert(u"GOOGLE_APPLICATION_CREDENTIALS"_s, u"/k.json"_s);

    const Outcome text = run({ u"status"_s });
    const Outcome json = run({ u"status"_s, u"--json"_s });

    EXPECT_EQ(text.exitCode, 0);
    EXPECT_TRUE(text.output.startsWith("Project  p\n")) << text.output.toStdString();
    EXPECT_EQ(text.error,
              "CLOUDSDK_CORE_PROJECT makes gcloud use the project \"other\".\n"
              "GOOGLE_APPLICATION_CREDENTIALS makes code use the credentials in \"/k.json\".\n");
    EXPECT_EQ(json.error, text.error);
    EXPECT_TRUE(
        json.output.endsWith(R"("lastError":null,"environmentOverrides":[)"
                             R"({"variable":"CLOUDSDK_CORE_PROJECT","value":"other"},)"
                             R"({"variable":"GOOGLE_APPLICATION_CREDENTIALS","value":"/k.json"}]})"
                             "\n"))
        << json.output.toStdString();
}

TEST_F(TorvictlStatusTest, SaysNothingOfAnEnvironmentThatAgreesWithTheFiles)
{
    writeConfig(u"configurations/config_default"_s, "[core]\nproject = p\n");
    environment.insert(u"CLOUDSDK_CORE_PROJECT"_s, u"p"_s);

    const Outcome outcome = run({ u"status"_s, u"--json"_s });

    EXPECT_TRUE(outcome.output.endsWith("\"lastError\":null}\n")) << outcome.output.toStdString();
    EXPECT_EQ(outcome.error, "");
}

TEST_F(TorvictlStatusTest, EachBarGetsItsOwnLine)
{
    writeConfig(u"configurations/config_default"_s,
                "[core]\nproject = p&q\n[auth]\nimpersonate_service_account = s@p\n");
    environment.insert(u"CLOUDSDK_CORE_PROJECT"_s, u"x"_s);
    const auto output = [this](const QString &format) {
        return run({ u"status"_s, u"--format"_s, format }).output;
    };

    EXPECT_EQ(output(u"plain"_s), "p&q as s\n");
    EXPECT_EQ(output(u"polybar"_s), "%{F#ffa348}p&q as s%{F-}\n");
    EXPECT_EQ(output(u"i3blocks"_s), "<span color='#ffa348'>p&amp;q as s</span>\n");
    EXPECT_EQ(output(u"waybar"_s),
              R"({"text":"p&amp;q as s","tooltip":"Project: p&amp;q\nAccount: None\n)"
              R"(Impersonating: s@p\nADC: Not configured\n)"
              R"(CLOUDSDK_CORE_PROJECT makes gcloud use the project &quot;x&quot;.",)"
              R"("class":["impersonating","warning"]})"
              "\n");
}

TEST_F(TorvictlStatusTest, FullDiskIsAnErrorNotASilentLoss)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(u"/dev/full"_s);

    process.start(QStringLiteral(TORVI_TORVICTL), { u"status"_s });

    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_EQ(process.readAllStandardError(),
              "Could not write to standard output: No space left on device\n");
}

} // namespace torvi
