// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/OutputReader.h"

#include "GCloudCLI/ChildProcess.h"
#include "GCloudCLI/StopEvent.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace torvi {

class OutputReaderTest : public testing::Test
{
protected:
    using End = OutputReader::End;

    std::stop_source stop;
    QByteArray output;
    QByteArray error;
    bool accepts = true;

    static ChildProcess start(const QString &script)
    {
        return ChildProcess::start({ .program = u"/bin/sh"_s, .arguments = { u"-c"_s, script } });
    }

    static void waitForExit(const ChildProcess &child)
    {
        pollfd exit{ .fd = child.exitEvent(), .events = POLLIN, .revents = 0 };
        ASSERT_TRUE(pollUntil({ &exit, 1 }, kNoDeadline));
    }

    End read(const ChildProcess &child, OutputReader::Limits limits)
    {
        const StopEvent stopEvent(stop.get_token());
        const auto into = [this](QByteArray &stream) {
            return [this, &stream](QByteArrayView chunk) {
                stream.append(chunk);
                return accepts;
            };
        };
        return OutputReader(child, stopEvent, into(output), into(error)).read(limits);
    }
};

TEST_F(OutputReaderTest, TakesBothStreamsUntilTheExit)
{
    const ChildProcess child = start(u"echo out; echo err >&2"_s);

    EXPECT_EQ(read(child, { .drain = 0s }), End::exited);

    EXPECT_EQ(output, "out\n");
    EXPECT_EQ(error, "err\n");
}

TEST_F(OutputReaderTest, TakesWhatIsInThePipesWhenTheDrainTimeIsOver)
{
    const ChildProcess child = start(u"head -c 60000 /dev/zero; head -c 60000 /dev/zero >&2"_s);
    waitForExit(child);

    EXPECT_EQ(read(child, { .drain = 0s }), End::exited);

    EXPECT_EQ(output.size(), 60'000);
    EXPECT_EQ(error.size(), 60'000);
}

TEST_F(OutputReaderTest, TakesMoreThanOneReadFromThePipesWhenTheDrainTimeIsOver)
{
    const ChildProcess child = start(u"echo $$; kill -STOP $$; head -c 200000 /dev/zero"_s);
    std::array<char, 16> pid{};
    ASSERT_GT(::read(child.standardOutput(), pid.data(), pid.size() - 1), 0);
    ASSERT_GE(::fcntl(child.standardOutput(), F_SETPIPE_SZ, 256 * 1024), 200'000);
    siginfo_t stopped{};
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(std::atoi(pid.data())), &stopped, WSTOPPED), 0);
    ASSERT_EQ(::kill(std::atoi(pid.data()), SIGCONT), 0);
    waitForExit(child);

    EXPECT_EQ(read(child, { .drain = 0s }), End::exited);

    EXPECT_EQ(output.size(), 200'000);
}

TEST_F(OutputReaderTest, StopsWhenAsked)
{
    const ChildProcess child = start(u"sleep 1000"_s);
    stop.request_stop();

    EXPECT_EQ(read(child, { .drain = 0s }), End::stopped);
}

TEST_F(OutputReaderTest, AStopAfterTheExitOnlyCutsTheDrainTimeShort)
{
    const ChildProcess child = start(u"sleep 1000 & echo out"_s); // the pipes stay open
    waitForExit(child);
    stop.request_stop();

    EXPECT_EQ(read(child, { .drain = 1h }), End::exited);

    EXPECT_EQ(output, "out\n");
}

TEST_F(OutputReaderTest, TimesOutWhenTheExitDoesNotCome)
{
    const ChildProcess child = start(u"sleep 1000"_s);

    EXPECT_EQ(read(child, { .drain = 1h, .exit = std::chrono::steady_clock::now() + 1ms }),
              End::timedOut);
}

TEST_F(OutputReaderTest, TimesOutWhileOutputKeepsComing)
{
    const ChildProcess child = start(u"yes"_s);

    EXPECT_EQ(read(child, { .drain = 1h, .exit = std::chrono::steady_clock::now() + 5ms }),
              End::timedOut);
}

TEST_F(OutputReaderTest, GivesUpWhenASinkRefuses)
{
    const ChildProcess child = start(u"echo out; sleep 1000"_s);
    accepts = false;

    EXPECT_EQ(read(child, { .drain = 1h }), End::refused);

    EXPECT_EQ(output, "out\n");
}

TEST_F(OutputReaderTest, GivesUpWhenASinkRefusesTheRest)
{
    const ChildProcess child = start(u"echo out"_s);
    waitForExit(child);
    accepts = false;

    EXPECT_EQ(read(child, { .drain = 0s }), End::refused);
}

TEST_F(OutputReaderTest, DoesNotWaitForTheDrainTimeWhenNothingMoreCanCome)
{
    const ChildProcess child = start(u"echo out"_s);

    EXPECT_EQ(read(child, { .drain = 1h }), End::exited);

    EXPECT_EQ(output, "out\n");
}

TEST_F(OutputReaderTest, WaitsForTheExitAlsoWhenNothingMoreCanCome)
{
    const ChildProcess child = start(u"exec >&- 2>&-; sleep 1000"_s);

    EXPECT_EQ(read(child, { .drain = 0s, .exit = std::chrono::steady_clock::now() + 50ms }),
              End::timedOut);
}

TEST_F(OutputReaderTest, WaitsOutTheDrainTimeOnDemand)
{
    const ChildProcess child = start(u"echo out"_s);
    const StopEvent stopEvent(stop.get_token());
    const auto ignore = [](QByteArrayView) { return true; };
    OutputReader reader(child, stopEvent, ignore, ignore);
    const auto begin = std::chrono::steady_clock::now();
    ASSERT_EQ(reader.read({ .drain = 20ms }), End::exited);

    reader.waitOut();

    EXPECT_GE(std::chrono::steady_clock::now() - begin, 20ms);
}

TEST_F(OutputReaderTest, AStopEndsTheWaitForTheDrainTime)
{
    const ChildProcess child = start(u"echo out"_s);
    const StopEvent stopEvent(stop.get_token());
    const auto ignore = [](QByteArrayView) { return true; };
    OutputReader reader(child, stopEvent, ignore, ignore);
    ASSERT_EQ(reader.read({ .drain = 1h }), End::exited);
    stop.request_stop();

    reader.waitOut();
}

} // namespace torvi
