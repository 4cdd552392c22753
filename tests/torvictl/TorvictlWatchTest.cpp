// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/torvictl/TorvictlProgram.h"

#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace torvi {

class TorvictlWatchTest : public TorvictlProgram
{
protected:
    std::unique_ptr<QProcess> watch;

    void SetUp() override
    {
        writeConfig(u"configurations/config_default"_s, "[core]\nproject = p1\n");
        watch = start({ u"watch"_s, u"--json"_s });
    }

    Outcome endedBy(int signal)
    {
        kill(static_cast<pid_t>(watch->processId()), signal);
        return outcome(*watch);
    }
};

TEST_F(TorvictlWatchTest, PrintsTheStatusAtOnceAndAgainAtEachChange)
{
    EXPECT_TRUE(nextLine(*watch).contains("\"id\":\"p1\""));

    writeConfig(u"configurations/config_default"_s, "[core]\nproject = p2\n");

    EXPECT_TRUE(nextLine(*watch).contains("\"id\":\"p2\""));
    endedBy(SIGINT);
}

TEST_F(TorvictlWatchTest, PrintsAlsoWhenNothingThatItShowsHasChanged)
{
    const QByteArray first = nextLine(*watch);

    writeConfig(u"logs/today.log"_s, "a gcloud ran");

    EXPECT_EQ(nextLine(*watch), first);
    endedBy(SIGINT);
}

TEST_F(TorvictlWatchTest, AnErrorPassesWithTheNextGoodRead)
{
    nextLine(*watch);
    writeConfig(u"application_default_credentials.json"_s, "{ half");
    EXPECT_TRUE(nextLine(*watch).contains("\"lastError\":\"Could not read config file: "));

    writeConfig(u"application_default_credentials.json"_s, "{}");

    EXPECT_TRUE(nextLine(*watch).endsWith("\"lastError\":null}"));
    endedBy(SIGINT);
}

TEST_F(TorvictlWatchTest, NeverRunsGcloud)
{
    nextLine(*watch);
    writeConfig(u"active_config"_s, "default");
    nextLine(*watch);
    endedBy(SIGINT);

    EXPECT_EQ(gcloudRuns(), "");
}

TEST_F(TorvictlWatchTest, ABarsLineLosesItsColourWhenTheImpersonationEnds)
{
    nextLine(*watch);
    writeConfig(u"configurations/config_default"_s,
                "[core]\nproject = p1\n[auth]\nimpersonate_service_account = s@p\n");
    const auto bar = start({ u"watch"_s, u"--format"_s, u"polybar"_s });
    EXPECT_EQ(nextLine(*bar), "%{F#ffa348}p1 as s%{F-}");

    writeConfig(u"configurations/config_default"_s, "[core]\nproject = p1\n");

    while (nextLine(*bar) != "p1") {
        ASSERT_FALSE(HasFailure());
    }
    kill(static_cast<pid_t>(bar->processId()), SIGINT);
    EXPECT_EQ(outcome(*bar).exitCode, 130);
    endedBy(SIGINT);
}

TEST_F(TorvictlWatchTest, CtrlCExits130)
{
    nextLine(*watch);

    EXPECT_EQ(endedBy(SIGINT).exitCode, 130);
}

TEST_F(TorvictlWatchTest, EndsWithZeroWhenItsReaderGoesAwayAlsoWithoutAChange)
{
    nextLine(*watch); // from now on a signal finds its handler
    QProcess pipeline;
    pipeline.setProcessEnvironment(environment);

    pipeline.start(u"/bin/sh"_s,
                   { u"-c"_s, u"{ \"$0\" watch; echo $? >\"$HOME/code\"; } | head -n 1"_s,
                     QStringLiteral(TORVI_TORVICTL) });

    ASSERT_TRUE(pipeline.waitForFinished(30000));
    EXPECT_EQ(pipeline.readAllStandardOutput(), "Project  p1\n");
    EXPECT_EQ(read(u"code"_s), "0\n");
    endedBy(SIGINT);
}

TEST_F(TorvictlWatchTest, EndsWithZeroAlsoWhenItsReaderWasASocket)
{
    nextLine(*watch);
    endedBy(SIGINT);
    std::array<int, 2> sockets{};
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets.data()), 0);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setChildProcessModifier([&sockets] { dup2(sockets[1], STDOUT_FILENO); });
    process.start(QStringLiteral(TORVI_TORVICTL), { u"watch"_s });
    ASSERT_TRUE(process.waitForStarted());
    close(sockets[1]);
    std::array<char, 10> line{};
    ASSERT_GT(::read(sockets[0], line.data(), line.size()), 0);

    close(sockets[0]);

    EXPECT_EQ(outcome(process).exitCode, 0);
}

TEST_F(TorvictlWatchTest, SeesADirectoryThatIsMadeLater)
{
    nextLine(*watch);
    environment.insert(u"CLOUDSDK_CONFIG"_s, path(u"later/gcloud"_s));
    const auto early = start({ u"watch"_s, u"--json"_s });
    EXPECT_TRUE(nextLine(*early).contains("\"activeProject\":null"));

    writeConfig(u"../../later/gcloud/configurations/config_default"_s, "[core]\nproject = new\n");

    while (!nextLine(*early).contains("\"id\":\"new\"")) {
        ASSERT_FALSE(HasFailure());
    }
    kill(static_cast<pid_t>(early->processId()), SIGINT);
    EXPECT_EQ(outcome(*early).exitCode, 130);
    endedBy(SIGINT);
}

} // namespace torvi
