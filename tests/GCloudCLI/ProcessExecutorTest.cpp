// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/GCloudCLI/ProcessExecutorFixture.h"

#include <QScopeGuard>

#include <algorithm>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace torvi {

namespace {

class FailingSearch final : public GCloudPathResolving
{
public:
    explicit FailingSearch(AppError error)
        : m_error(std::move(error))
    {
    }

    [[nodiscard]] QString resolve(std::stop_token /*stop*/) const override
    {
        throw m_error;
    }

private:
    AppError m_error;
};

} // namespace

class ProcessExecutorTest : public ProcessExecutorFixture
{
};

TEST_F(ProcessExecutorTest, YieldsExitCodeAndBothStreams)
{
    script("echo out; echo err >&2; exit 3");

    EXPECT_EQ(run(), (GCloudResult{ 3, u"out\n"_s, u"err\n"_s }));
}

TEST_F(ProcessExecutorTest, YieldsEmptyTextsForASilentSuccess)
{
    script("");

    EXPECT_EQ(run(), (GCloudResult{ 0, u""_s, u""_s }));
}

TEST_F(ProcessExecutorTest, PassesTheArgumentsOfTheCommandAndTheEmptyOneToo)
{
    script("printf '[%s]' \"$@\"");

    EXPECT_EQ(run(GCloudCommand::setProject(u"a b"_s)).stdout, u"[config][set][project][a b]"_s);
    EXPECT_EQ(run(GCloudCommand::clearQuotaProject()).stdout,
              u"[auth][application-default][set-quota-project][]"_s);
}

TEST_F(ProcessExecutorTest, ADeathByASignalYieldsTheSignalsNumber)
{
    script("echo before; kill -KILL $$");
    EXPECT_EQ(run(), (GCloudResult{ SIGKILL, u"before\n"_s, u""_s }));

    script("kill -TERM $$");
    EXPECT_EQ(run().exitCode, SIGTERM);
}

TEST_F(ProcessExecutorTest, AFailedSearchIsThrownUnchangedAndStartsNothing)
{
    script("echo started > $dir/log");
    for (const AppError &error : { AppError::gcloudNotFound(), AppError::unknown(u"x"_s) }) {
        search = std::make_shared<FailingSearch>(error);
        executor.reset();

        EXPECT_EQ(runToError(), error);
    }
    EXPECT_EQ(folder.read(u"log"_s), "");
}

TEST_F(ProcessExecutorTest, AMissingExecutableIsALaunchFailure)
{
    EXPECT_EQ(
        runToError(),
        AppError::commandFailed(-1, u"Failed to launch process: No such file or directory"_s));
}

TEST_F(ProcessExecutorTest, AFileThatIsNotExecutableIsALaunchFailure)
{
    folder.write(u"gcloud"_s, "#!/bin/sh\n");

    EXPECT_EQ(runToError(),
              AppError::commandFailed(-1, u"Failed to launch process: Permission denied"_s));
}

TEST_F(ProcessExecutorTest, APayloadThatCannotBeAnArgumentIsALaunchFailure)
{
    script("");

    EXPECT_EQ(runToError(GCloudCommand::setProject(u"a\0b"_s)),
              AppError::commandFailed(-1, u"Failed to launch process: Invalid argument"_s));
}

TEST_F(ProcessExecutorTest, AQuestionOnStandardInputMeetsTheEndOfFile)
{
    script("read answer || echo none; readlink /proc/$$/fd/0");

    EXPECT_EQ(run().stdout, u"none\n/dev/null\n"_s);
}

TEST_F(ProcessExecutorTest, TheEnvironmentIsOursWithoutTheCredentialsVariable)
{
    qputenv("GOOGLE_APPLICATION_CREDENTIALS", "/tmp/key.json");
    qputenv("GOOGLE_APPLICATION_CREDENTIALS_2", "stays");
    qputenv("TORVI_TEST", "two words = \xc3\xa9");
    const auto unset = qScopeGuard([] {
        for (const char *name : { "GOOGLE_APPLICATION_CREDENTIALS",
                                  "GOOGLE_APPLICATION_CREDENTIALS_2", "TORVI_TEST" }) {
            qunsetenv(name);
        }
    });
    QByteArrayList expected;
    for (char **variable = environ; *variable != nullptr; ++variable) {
        if (!QByteArray(*variable).startsWith("GOOGLE_APPLICATION_CREDENTIALS=")) {
            expected.append(*variable);
        }
    }
    script("cat /proc/$$/environ > $dir/environment");

    ASSERT_EQ(run().exitCode, 0);

    QByteArrayList actual = folder.read(u"environment"_s).split('\0');
    EXPECT_EQ(actual.takeLast(), "");
    std::ranges::sort(actual);
    std::ranges::sort(expected);
    EXPECT_EQ(actual, expected);
    EXPECT_TRUE(actual.contains("GOOGLE_APPLICATION_CREDENTIALS_2=stays"));
    EXPECT_EQ(qgetenv("GOOGLE_APPLICATION_CREDENTIALS"), "/tmp/key.json") << "ours is untouched";
}

TEST_F(ProcessExecutorTest, GcloudInheritsTheStandardStreamsOnly)
{
    const FileDescriptor leaky(::open("/dev/null", O_RDONLY)); // NOLINT: no O_CLOEXEC on purpose
    script("ls /proc/self/fd");

    EXPECT_EQ(run().stdout, u"0\n1\n2\n3\n"_s) << "3 is the folder that ls itself reads";
}

TEST_F(ProcessExecutorTest, GcloudLeadsAProcessGroup)
{
    script("[ $(cut -d ' ' -f 5 /proc/$$/stat) = $$ ]");

    EXPECT_EQ(run().exitCode, 0);
}

TEST_F(ProcessExecutorTest, GcloudIsToldWhenItsReaderIsGone)
{
    const auto previous = ::signal(SIGPIPE, SIG_IGN);
    const auto restore = qScopeGuard([previous] { ::signal(SIGPIPE, previous); });
    script("grep SigIgn /proc/$$/status");

    EXPECT_EQ(run().stdout, u"SigIgn:\t0000000000000000\n"_s);
}

TEST_F(ProcessExecutorTest, FloodsOnBothStreamsArriveWhole)
{
    script("head -c 3000000 /dev/zero | tr '\\0' o & "
           "head -c 3000000 /dev/zero | tr '\\0' e >&2; wait");

    const GCloudResult result = run();

    EXPECT_EQ(result.stdout.count(u'o'), 3'000'000);
    EXPECT_EQ(result.stderr.count(u'e'), 3'000'000);
    EXPECT_EQ(result.stdout.size() + result.stderr.size(), 6'000'000);
}

TEST_F(ProcessExecutorTest, AFloodOnOneStreamDoesNotWaitForTheOther)
{
    script("head -c 3000000 /dev/zero >&2; echo done");

    EXPECT_EQ(run().stdout, u"done\n"_s);
}

TEST_F(ProcessExecutorTest, AStreamThatIsNotUtf8IsEmptyAndTheOtherStays)
{
    script("printf 'ok \\377'; printf 'caf\\303\\251' >&2");
    EXPECT_EQ(run(), (GCloudResult{ 0, u""_s, u"café"_s }));

    script("echo ok; printf 'cut off \\303' >&2");
    EXPECT_EQ(run(), (GCloudResult{ 0, u"ok\n"_s, u""_s }));
}

TEST_F(ProcessExecutorTest, ACharacterThatArrivesInTwoPiecesIsWhole)
{
    script("printf '\\303'; sleep 0.02; printf '\\251'");

    EXPECT_EQ(run().stdout, u"é"_s);
}

TEST_F(ProcessExecutorTest, ClosedStreamsDoNotEndTheRun)
{
    script("echo early; exec >&- 2>&-; echo late > $dir/log; exit 4");

    EXPECT_EQ(run(), (GCloudResult{ 4, u"early\n"_s, u""_s }));
    EXPECT_EQ(folder.read(u"log"_s), "late\n");
}

TEST_F(ProcessExecutorTest, WhatIsPrintedJustBeforeTheExitIsInTheResult)
{
    script("sleep 0.02; printf last; printf words >&2; kill -KILL $$");

    EXPECT_EQ(run(), (GCloudResult{ SIGKILL, u"last"_s, u"words"_s }));
}

TEST_F(ProcessExecutorTest, TheResultComesATenthOfASecondAfterTheExitNotSooner)
{
    script("");
    const auto start = std::chrono::steady_clock::now();

    EXPECT_EQ(run().exitCode, 0);

    EXPECT_GE(std::chrono::steady_clock::now() - start, 100ms);
}

TEST_F(ProcessExecutorTest, WhatArrivesWithinTheDrainTimeCounts)
{
    drain = 2s; // far more than a busy machine delays the grandchild
    script("(sleep 0.05; echo late) & (sleep 0.05; echo too >&2) & echo early");

    const GCloudResult result = run();

    EXPECT_EQ(result, (GCloudResult{ 0, u"early\nlate\n"_s, u"too\n"_s }));
}

TEST_F(ProcessExecutorTest, AGrandchildThatHoldsThePipesDelaysNothing)
{
    script("sleep 1000 & echo $! > $dir/pid; echo done");

    EXPECT_EQ(run(), (GCloudResult{ 0, u"done\n"_s, u""_s }));
    kill(u"pid"_s);
}

TEST_F(ProcessExecutorTest, AGrandchildThatPrintsWithoutEndDelaysNothing)
{
    script("(while sleep 0.001; do echo more; done) & exit 5");

    EXPECT_EQ(run().exitCode, 5);
}

TEST_F(ProcessExecutorTest, CallsRunSideBySide)
{
    script("case $1 in version) read line < $fifo; echo $line;; *) echo hello > $fifo;; esac");

    const auto waiting = startRun(GCloudCommand::version());
    const auto other = startRun(GCloudCommand::listAccounts());
    settle(*waiting);
    settle(*other);

    EXPECT_EQ(waiting->result, (GCloudResult{ 0, u"hello\n"_s, u""_s }));
    EXPECT_EQ(other->result, (GCloudResult{ 0, u""_s, u""_s }));
}

TEST_F(ProcessExecutorTest, ACallReturnsAtOnceWhileTheSearchLasts)
{
    const auto slowSearch = std::make_shared<SlowSearch>();
    search = slowSearch;
    script("echo found");

    const auto outcome = startRun();
    EXPECT_FALSE(outcome->isKnown());
    slowSearch->find(gcloud);
    settle(*outcome);

    EXPECT_EQ(outcome->result, (GCloudResult{ 0, u"found\n"_s, u""_s }));
}

} // namespace torvi
