// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudPathResolver.h"
#include "tests/GCloudCLI/ProcessExecutorFixture.h"

#include <array>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace torvi {

namespace {

std::string readToEnd(int descriptor)
{
    std::string text;
    std::array<char, 4096> chunk{};
    for (;;) {
        const ssize_t count = ::read(descriptor, chunk.data(), chunk.size());
        if (count <= 0) {
            return text;
        }
        text.append(chunk.data(), static_cast<std::size_t>(count));
    }
}

} // namespace

/// The executor goes away, or the program is quit, while calls are pending.
class ProcessExecutorEndTest : public ProcessExecutorFixture
{
protected:
    static void expectEnded(const Outcome &outcome)
    {
        settle(outcome);
        EXPECT_FALSE(outcome.result.has_value());
        EXPECT_EQ(outcome.error,
                  AppError::unknown(u"gcloud was ended because Torvi is closing."_s));
    }
};

TEST_F(ProcessExecutorEndTest, EndsARunningGcloudAndItsChildren)
{
    script("exec 9>$fifo; sleep 1000 & sleep 1000");
    const auto outcome = startRun();
    const FileDescriptor script = waitForTheScript();

    executor.reset();

    EXPECT_EQ(readToEnd(script.get()), "");
    expectEnded(*outcome);
}

TEST_F(ProcessExecutorEndTest, AsksGcloudBeforeItIsKilled)
{
    script("exec 9>$fifo; trap 'echo asked >&9; exit' TERM; echo ready >&9; "
           "while :; do sleep 0.05; done");
    const auto outcome = startRun();
    const FileDescriptor script = waitForTheScript();
    std::array<char, 6> ready{};
    ASSERT_EQ(::read(script.get(), ready.data(), ready.size()), 6);

    executor.reset();

    EXPECT_EQ(readToEnd(script.get()), "asked\n");
    expectEnded(*outcome);
}

TEST_F(ProcessExecutorEndTest, KillsWhatDoesNotListenSideBySide)
{
    script("trap '' TERM; exec 9>$fifo; sleep 1000");
    const auto first = startRun();
    const auto second = startRun();
    const FileDescriptor script = waitForTheScript();

    executor.reset();

    EXPECT_EQ(readToEnd(script.get()), "");
    expectEnded(*first);
    expectEnded(*second);
}

TEST_F(ProcessExecutorEndTest, EndsALoginShellOfARunningSearch)
{
    const QString shell
        = folder.writeScript(u"shell"_s, "exec 9>'" + fifo.toUtf8() + "'; sleep 1000 & sleep 1000");
    search = std::make_shared<GCloudPathResolver>(std::nullopt,
                                                  SearchPlaces{ .homeDirectory = folder.path(),
                                                                .wellKnown = {},
                                                                .startUpFiles = {},
                                                                .shell = shell,
                                                                .shellTimeLimit = 1h });
    const auto outcome = startRun();
    const FileDescriptor script = waitForTheScript();

    executor.reset();

    EXPECT_EQ(readToEnd(script.get()), "");
    expectEnded(*outcome);
}

TEST_F(ProcessExecutorEndTest, StopsASearch)
{
    search = std::make_shared<SlowSearch>();
    const auto outcome = startRun();

    executor.reset();

    expectEnded(*outcome);
}

TEST_F(ProcessExecutorEndTest, ARunThatHasEndedKeepsItsResult)
{
    script("echo done");
    const auto outcome = startRun();
    settle(*outcome);

    executor.reset();

    EXPECT_EQ(outcome->result, (GCloudResult{ 0, u"done\n"_s, u""_s }));
}

TEST_F(ProcessExecutorEndTest, WithoutRunsNothingHappens)
{
    executor = std::make_unique<ProcessExecutor>(search);

    executor.reset();
}

} // namespace torvi
