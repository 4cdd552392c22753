// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/torvictl/TorvictlProgram.h"

#include <QDir>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <csignal>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

constexpr auto kSignInAddress
    = "https://accounts.google.com/o/oauth2/auth?response_type=code&state=%2b%41~!*'()";

/// Whether a process of the group `leader` runs still; ended ones that nobody has reaped do not.
bool groupRuns(pid_t leader)
{
    const QStringList processes = QDir(u"/proc"_s).entryList({ u"[0-9]*"_s }, QDir::Dirs);
    return std::ranges::any_of(processes, [leader](const QString &process) {
        QFile file(u"/proc/%1/stat"_s.arg(process));
        if (!file.open(QIODevice::ReadOnly)) {
            return false;
        }
        const QByteArray stat = file.readAll();
        const QByteArrayList fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        return fields.value(0) != "Z" && fields.value(2).toInt() == leader;
    });
}

} // namespace

class TorvictlOperationsTest : public TorvictlProgram
{
};

struct CommandLineOfGcloud
{
    QStringList arguments;
    QByteArray gcloud;
};

class TorvictlCommandTest : public TorvictlProgram,
                            public testing::WithParamInterface<CommandLineOfGcloud>
{
};

TEST_P(TorvictlCommandTest, RunsGcloudAndPrintsNothing)
{
    const Outcome outcome = run(GetParam().arguments);

    EXPECT_EQ(outcome.exitCode, 0) << outcome.error.toStdString();
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(gcloudRuns(), GetParam().gcloud);
}

TEST_P(TorvictlCommandTest, ShowsGcloudsFailureOnStandardError)
{
    scriptGcloud("echo 'ERROR: no' >&2; exit 7");

    const Outcome outcome = run(GetParam().arguments);

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.error, "gcloud command failed (exit 7): ERROR: no\n");
}

INSTANTIATE_TEST_SUITE_P(
    All, TorvictlCommandTest,
    testing::Values(
        CommandLineOfGcloud{ { u"switch-project"_s, u"x"_s }, "config set project x\n" },
        CommandLineOfGcloud{ { u"activate-configuration"_s, u"x"_s },
                             "config configurations activate x\n" },
        CommandLineOfGcloud{ { u"create-configuration"_s, u"x"_s },
                             "config configurations create x\n" },
        CommandLineOfGcloud{ { u"delete-configuration"_s, u"x"_s },
                             "config configurations delete x --quiet\n" },
        CommandLineOfGcloud{ { u"set-quota-project"_s, u"x"_s },
                             "auth application-default set-quota-project x\n" },
        CommandLineOfGcloud{ { u"adc-login"_s }, "auth application-default login --quiet\n" },
        CommandLineOfGcloud{
            { u"impersonate"_s, u"s"_s },
            "auth application-default login --impersonate-service-account=s --quiet\n" },
        CommandLineOfGcloud{ { u"impersonate"_s, u"s"_s, u"--mode"_s, u"cliOnly"_s },
                             "config set auth/impersonate_service_account s\n" },
        CommandLineOfGcloud{ { u"clear-impersonation"_s },
                             "auth application-default revoke --quiet\n" },
        CommandLineOfGcloud{ { u"clear-impersonation"_s, u"--mode=cliOnly"_s },
                             "config unset auth/impersonate_service_account\n" }));

TEST_F(TorvictlOperationsTest, ImpersonatingBothRunsTheCLIStepFirst)
{
    EXPECT_EQ(run({ u"impersonate"_s, u"s"_s, u"--mode"_s, u"both"_s }).exitCode, 0);
    EXPECT_EQ(run({ u"clear-impersonation"_s, u"--mode"_s, u"both"_s }).exitCode, 0);

    EXPECT_EQ(gcloudRuns(),
              "config set auth/impersonate_service_account s\n"
              "auth application-default login --impersonate-service-account=s --quiet\n"
              "config unset auth/impersonate_service_account\n"
              "auth application-default revoke --quiet\n");
}

TEST_F(TorvictlOperationsTest, AccountSwitchAlsoListsItsProjects)
{
    scriptGcloud("[ $1 = projects ] && echo '[]'; exit 0");

    EXPECT_EQ(run({ u"switch-account"_s, u"a@x"_s }).exitCode, 0);

    EXPECT_EQ(gcloudRuns(),
              "config set account a@x\nprojects list --format=json --sort-by=projectId\n");
}

TEST_F(TorvictlOperationsTest, MissingGcloudSaysSo)
{
    ASSERT_TRUE(QFile::remove(path(u"google-cloud-sdk/bin/gcloud"_s)));
    environment.insert(u"SHELL"_s, u"/bin/false"_s);

    const Outcome outcome = run({ u"switch-project"_s, u"x"_s });

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.error, "gcloud CLI not found. Please install the Google Cloud SDK.\n");
}

TEST_F(TorvictlOperationsTest, LocatePrintsThePathAlone)
{
    const Outcome outcome = run({ u"locate"_s });

    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output, path(u"google-cloud-sdk/bin/gcloud"_s).toUtf8() + '\n');
}

TEST_F(TorvictlOperationsTest, LocateFailsWhereThereIsNoGcloud)
{
    ASSERT_TRUE(QFile::remove(path(u"google-cloud-sdk/bin/gcloud"_s)));

    const Outcome outcome = run({ u"locate"_s });

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.error, "gcloud CLI not found. Please install the Google Cloud SDK.\n");
}

TEST_F(TorvictlOperationsTest, TokenIsPrintedTrimmedWithOneLineFeed)
{
    scriptGcloud("printf ' ey.J0\\n\\n'");

    const Outcome outcome = run({ u"identity-token"_s });

    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output, "ey.J0\n");
}

TEST_F(TorvictlOperationsTest, FailedTokenPrintsNothingOnStandardOutput)
{
    scriptGcloud("echo oops >&2; exit 1");

    const Outcome outcome = run({ u"identity-token"_s });

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.error, "gcloud command failed (exit 1): oops\n");
}

TEST_F(TorvictlOperationsTest, ProjectsAreListedInGcloudsOrderWithTheirPins)
{
    scriptGcloud(R"(echo '[{"projectId": "b", "name": "B", "projectNumber": "1"},)"
                 R"( {"projectId": "a", "name": "A"}]')");
    run({ u"pin"_s, u"a"_s });

    const Outcome outcome = run({ u"projects"_s, u"--json"_s });

    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output,
              R"([{"id":"b","name":"B","projectNumber":"1","isPinned":false,"lastUsed":null},)"
              R"({"id":"a","name":"A","projectNumber":null,"isPinned":true,"lastUsed":null}])"
              "\n");
    EXPECT_EQ(run({ u"projects"_s }).output, "b  B\na  A\n");
}

TEST_F(TorvictlOperationsTest, FailedListOfProjectsIsEmptyAndAnError)
{
    scriptGcloud("echo down >&2; exit 1");

    const Outcome outcome = run({ u"projects"_s, u"--json"_s });

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.output, "[]\n");
    EXPECT_EQ(outcome.error, "gcloud command failed (exit 1): down\n");
}

TEST_F(TorvictlOperationsTest, DiscoveredServiceAccountsBelongToTheProject)
{
    scriptGcloud(R"(echo '[{"email": "s@p", "displayName": "S"}]')");

    EXPECT_EQ(run({ u"service-accounts"_s, u"p"_s, u"--json"_s }).output,
              "[{\"email\":\"s@p\",\"projectId\":\"p\",\"displayName\":\"S\"}]\n");
    EXPECT_EQ(run({ u"service-accounts"_s, u"p"_s }).output, "s@p  S\n");
}

TEST_F(TorvictlOperationsTest, FailedDiscoveryIsAnEmptyListAndNoFailure)
{
    scriptGcloud("echo '[]'; echo denied >&2; exit 1");

    const Outcome outcome = run({ u"service-accounts"_s, u"p"_s, u"--json"_s });

    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output, "[]\n");
    EXPECT_EQ(outcome.error, "");
}

TEST_F(TorvictlOperationsTest, SwitchedProjectEntersTheRecentList)
{
    scriptGcloud("mkdir -p \"$config/configurations\"; printf '[core]\\nproject = %s\\n' \"$4\" "
                 ">\"$config/configurations/config_default\"");

    run({ u"switch-project"_s, u"p1"_s });
    run({ u"switch-project"_s, u"p2"_s });

    EXPECT_EQ(run({ u"recents"_s, u"--json"_s }).output, "[\"p2\",\"p1\"]\n");
    EXPECT_EQ(run({ u"recents"_s }).output, "p2\np1\n");
}

TEST_F(TorvictlOperationsTest, ProjectThatIsNotActiveAfterwardsIsNotRecent)
{
    run({ u"switch-project"_s, u"p1"_s }); // this gcloud changes nothing

    EXPECT_EQ(run({ u"recents"_s, u"--json"_s }).output, "[]\n");
}

TEST_F(TorvictlOperationsTest, SignInAddressStandsOnStandardErrorByteForByte)
{
    scriptGcloud(QByteArray("printf 'Visit:\\n\\n    %s\\n\\n' \"") + kSignInAddress
                 + "\" >&2; exit 0");

    const Outcome outcome = run({ u"adc-login"_s });

    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_TRUE(outcome.error.contains(kSignInAddress)) << outcome.error.toStdString();
}

TEST_F(TorvictlOperationsTest, CtrlCDuringASignInEndsGcloudAndExits130)
{
    scriptGcloud(QByteArray("printf '%s\\n' \"") + kSignInAddress
                 + "\" >&2; echo $$ >\"$HOME/pid\"; sleep 600 & wait");
    const auto process = start({ u"adc-login"_s });
    process->setReadChannel(QProcess::StandardError);
    while (!read(u"pid"_s).endsWith('\n')) {
        ASSERT_TRUE(process->waitForReadyRead(30000) || process->canReadLine());
    }
    const pid_t gcloud = read(u"pid"_s).trimmed().toInt();
    ASSERT_GT(gcloud, 0);

    kill(static_cast<pid_t>(process->processId()), SIGINT);

    EXPECT_EQ(outcome(*process).exitCode, 130);
    while (groupRuns(gcloud)) { // what was killed takes its while to end
        QThread::yieldCurrentThread();
    }
}

} // namespace torvi
