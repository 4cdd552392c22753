// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/ChildProcess.h"

#include <QScopeGuard>
#include <QTemporaryFile>

#include <gmock/gmock.h>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace torvi {

using testing::HasSubstr;
using testing::Not;

namespace {

using Launch = ChildProcess::Launch;
using Leads = ChildProcess::Leads;

Launch shell(const QString &script)
{
    return { .program = u"/bin/sh"_s, .arguments = { u"-c"_s, script } };
}

Launch session(const QString &program, const QString &script)
{
    return { .program = program, .arguments = { u"-c"_s, script }, .leads = Leads::session };
}

/// Everything up to the end of file, which comes when the last process that could write is gone.
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

std::string readLine(int descriptor)
{
    std::string line;
    char character = 0;
    while (::read(descriptor, &character, 1) == 1 && character != '\n') {
        line.push_back(character);
    }
    return line;
}

std::string outputOf(const Launch &launch)
{
    const ChildProcess child = ChildProcess::start(launch);
    return readToEnd(child.standardOutput());
}

int launchError(const Launch &launch)
{
    try {
        const ChildProcess child = ChildProcess::start(launch);
        return 0;
    } catch (const std::system_error &error) {
        return error.code().value();
    }
}

} // namespace

TEST(ChildProcessTest, PassesEveryArgumentAsItIs)
{
    const Launch launch{ .program = u"/bin/sh"_s,
                         .arguments = { u"-c"_s, u"printf '[%s]' \"$@\""_s, u"name"_s, u"a b"_s,
                                        u""_s, u"$HOME"_s, u"é"_s } };

    EXPECT_EQ(outputOf(launch), "[a b][][$HOME][é]");
}

TEST(ChildProcessTest, KeepsOutputAndErrorApart)
{
    const ChildProcess child = ChildProcess::start(shell(u"echo out; echo err >&2"_s));

    EXPECT_EQ(readToEnd(child.standardOutput()), "out\n");
    EXPECT_EQ(readToEnd(child.standardError()), "err\n");
}

TEST(ChildProcessTest, ReadsFromTheNullDevice)
{
    EXPECT_EQ(outputOf(shell(u"cat; readlink /proc/$$/fd/0"_s)), "/dev/null\n");
}

TEST(ChildProcessTest, DiscardsStandardErrorOnDemand)
{
    Launch launch = shell(u"readlink /proc/$$/fd/2; :"_s);
    launch.standardError = ChildProcess::StandardError::discarded;
    const ChildProcess child = ChildProcess::start(launch);

    EXPECT_EQ(child.standardError(), -1);
    EXPECT_EQ(readToEnd(child.standardOutput()), "/dev/null\n");
}

TEST(ChildProcessTest, InheritsTheThreeStandardStreamsOnly)
{
    const FileDescriptor leaky(::open("/dev/null", O_RDONLY)); // NOLINT: no O_CLOEXEC on purpose
    ASSERT_TRUE(leaky.isOpen());

    EXPECT_EQ(outputOf(shell(u"ls /proc/$$/fd; :"_s)), "0\n1\n2\n");
}

TEST(ChildProcessTest, NeedsNoStandardStreamsOfOurOwn)
{
    std::array<FileDescriptor, 3> saved;
    for (int stream = 0; stream < 3; ++stream) {
        saved[static_cast<std::size_t>(stream)]
            = FileDescriptor(::fcntl(stream, F_DUPFD_CLOEXEC, 10));
        ::close(stream);
    }
    std::optional restore(qScopeGuard([&saved] {
        for (int stream = 0; stream < 3; ++stream) {
            ::dup2(saved[static_cast<std::size_t>(stream)].get(), stream);
        }
    }));

    std::optional<ChildProcess> child(
        ChildProcess::start(shell(u"cat; echo out; echo err >&2; ls /proc/$$/fd; :"_s)));
    const std::string output = readToEnd(child->standardOutput());
    const std::string error = readToEnd(child->standardError());
    child.reset(); // frees what it may have put in the place of our own streams
    restore.reset();

    EXPECT_EQ(output, "out\n0\n1\n2\n");
    EXPECT_EQ(error, "err\n");
}

TEST(ChildProcessTest, HasTheGivenEnvironmentAndNothingElse)
{
    const Launch launch{ .program = u"/usr/bin/env"_s,
                         .arguments = {},
                         .environment = std::vector<std::string>{ "A=1", "B=two words" } };

    EXPECT_EQ(outputOf(launch), "A=1\nB=two words\n");
}

TEST(ChildProcessTest, HasOurEnvironmentWhenNoneIsGiven)
{
    qputenv("TORVI_TEST", "here");
    const auto unset = qScopeGuard([] { qunsetenv("TORVI_TEST"); });

    EXPECT_EQ(outputOf(shell(u"echo $TORVI_TEST"_s)), "here\n");
}

TEST(ChildProcessTest, StartsWithNoSignalIgnoredOrBlocked)
{
    const auto previous = ::signal(SIGPIPE, SIG_IGN);
    sigset_t blocked;
    sigset_t mask;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGUSR1);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &mask);
    const auto restore = qScopeGuard([&] {
        ::signal(SIGPIPE, previous);
        ::pthread_sigmask(SIG_SETMASK, &mask, nullptr);
    });

    EXPECT_EQ(outputOf({ .program = u"/bin/grep"_s,
                         .arguments = { u"-E"_s, u"^Sig(Blk|Ign)"_s, u"/proc/self/status"_s } }),
              "SigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\n");
}

TEST(ChildProcessTest, LeavesOurOwnSignalMaskAsItWas)
{
    sigset_t before;
    sigset_t after;
    ::pthread_sigmask(SIG_BLOCK, nullptr, &before);

    EXPECT_EQ(outputOf(shell(u"echo x"_s)), "x\n");

    ::pthread_sigmask(SIG_BLOCK, nullptr, &after);
    for (int signal = 1; signal < SIGRTMIN; ++signal) {
        EXPECT_EQ(::sigismember(&before, signal), ::sigismember(&after, signal)) << signal;
    }
}

TEST(ChildProcessTest, LeadsAProcessGroupInOurSession)
{
    const QString script = u"[ $(cut -d ' ' -f 5 /proc/$$/stat) = $$ ] && echo leader; "
                           "cut -d ' ' -f 6 /proc/$$/stat"_s;

    EXPECT_EQ(outputOf(shell(script)), "leader\n" + std::to_string(::getsid(0)) + "\n");
}

TEST(ChildProcessTest, LeadsASessionWithoutATerminal)
{
    const QString script = u"[ $(cut -d ' ' -f 6 /proc/$$/stat) = $$ ] && echo leader; "
                           "cut -d ' ' -f 7 /proc/$$/stat"_s;

    EXPECT_EQ(outputOf(session(u"/bin/sh"_s, script)), "leader\n0\n");
}

TEST(ChildProcessTest, EndsWithTheThreadThatStartedIt)
{
    std::optional<ChildProcess> child;

    std::thread([&child] {
        child.emplace(ChildProcess::start(shell(u"exec sleep 1000"_s)));
    }).join();

    EXPECT_EQ(child->exitCode(), SIGTERM);
}

TEST(ChildProcessTest, AnInteractiveShellEndsWithTheThreadThatStartedIt)
{
    std::optional<ChildProcess> child;

    std::thread([&child] {
        child.emplace(
            ChildProcess::start({ .program = u"/bin/bash"_s,
                                  .arguments = { u"--norc"_s, u"-i"_s, u"-c"_s,
                                                 u"echo ready; while :; do sleep 0.05; done"_s },
                                  .leads = Leads::session,
                                  .standardError = ChildProcess::StandardError::discarded }));
        EXPECT_EQ(readLine(child->standardOutput()), "ready");
    }).join();

    EXPECT_EQ(child->exitCode(), SIGHUP);
}

TEST(ChildProcessTest, YieldsTheExitStatusEachTimeItIsAsked)
{
    ChildProcess child = ChildProcess::start(shell(u"exit 7"_s));

    EXPECT_EQ(child.exitCode(), 7);
    EXPECT_EQ(child.exitCode(), 7);
}

TEST(ChildProcessTest, YieldsTheNumberOfTheSignalThatEndedIt)
{
    EXPECT_EQ(ChildProcess::start(shell(u"kill -TERM $$"_s)).exitCode(), SIGTERM);
    EXPECT_EQ(ChildProcess::start(shell(u"kill -KILL $$"_s)).exitCode(), SIGKILL);
}

TEST(ChildProcessTest, YieldsTheExitStatusAlsoWhenWeInheritedAnIgnoredSigchld)
{
    const auto previous = ::signal(SIGCHLD, SIG_IGN);
    const auto restore = qScopeGuard([previous] { ::signal(SIGCHLD, previous); });

    EXPECT_EQ(ChildProcess::start(shell(u"exit 7"_s)).exitCode(), 7);
}

TEST(ChildProcessTest, OutputStaysReadableAfterTheExit)
{
    ChildProcess child = ChildProcess::start(shell(u"echo last words"_s));

    ASSERT_EQ(child.exitCode(), 0);

    EXPECT_EQ(readToEnd(child.standardOutput()), "last words\n");
}

TEST(ChildProcessTest, TheExitEventComesWithTheExitWhileAGrandchildHoldsThePipes)
{
    const ChildProcess child = ChildProcess::start(shell(u"sleep 1000 & exit 0"_s));
    pollfd exit{ .fd = child.exitEvent(), .events = POLLIN, .revents = 0 };

    EXPECT_EQ(::poll(&exit, 1, 30'000), 1);
}

TEST(ChildProcessTest, AMissingProgramFailsToStart)
{
    EXPECT_EQ(launchError({ .program = u"/nonexistent/gcloud"_s }), ENOENT);
    EXPECT_EQ(launchError({ .program = u""_s }), ENOENT);
}

TEST(ChildProcessTest, ADirectoryFailsToStart)
{
    EXPECT_EQ(launchError({ .program = u"/"_s }), EACCES);
}

TEST(ChildProcessTest, AFileThatIsNoProgramFailsToStart)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("no program");
    file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    const QString path = file.fileName();
    // A file that is open for writing cannot be run at all.
    const QString copy = path + u".copy"_s;
    file.close();
    ASSERT_TRUE(QFile::copy(path, copy));
    const auto remove = qScopeGuard([&copy] { QFile::remove(copy); });

    EXPECT_EQ(launchError({ .program = copy }), ENOEXEC);
}

TEST(ChildProcessTest, AnArgumentThatTheSystemWouldCutShortFailsToStart)
{
    EXPECT_EQ(launchError({ .program = u"/bin/true"_s, .arguments = { u"a\0b"_s } }), EINVAL);
}

TEST(ChildProcessTest, AFailedStartLeavesNoDescriptorAndNoChild)
{
    const auto lowestFree = [] { return FileDescriptor(::open("/dev/null", O_RDONLY)).get(); };
    const int before = lowestFree();

    EXPECT_EQ(launchError({ .program = u"/nonexistent/gcloud"_s }), ENOENT);

    EXPECT_EQ(lowestFree(), before);
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}

TEST(ChildProcessTest, EndAsksBeforeItKills)
{
    ChildProcess child = ChildProcess::start(
        shell(u"trap 'echo asked; exit 3' TERM; echo ready; while :; do sleep 0.05; done"_s));
    ASSERT_EQ(readLine(child.standardOutput()), "ready");

    child.end(30s);

    EXPECT_EQ(child.exitCode(), 3);
    EXPECT_EQ(readToEnd(child.standardOutput()), "asked\n");
}

TEST(ChildProcessTest, EndKillsWhatDoesNotListen)
{
    ChildProcess child
        = ChildProcess::start(shell(u"trap '' TERM; echo ready; sleep 1000; sleep 1000"_s));
    ASSERT_EQ(readLine(child.standardOutput()), "ready");

    child.end(10ms);

    EXPECT_EQ(child.exitCode(), SIGKILL);
    EXPECT_EQ(readToEnd(child.standardOutput()), "") << "its own child is gone too";
}

TEST(ChildProcessTest, EndTakesAlongWhatTheChildLeavesBehind)
{
    ChildProcess child
        = ChildProcess::start(shell(u"(trap '' TERM; echo ready; sleep 1000) & exec sleep 1000"_s));
    ASSERT_EQ(readLine(child.standardOutput()), "ready");

    child.end(30s);

    EXPECT_EQ(readToEnd(child.standardOutput()), "");
}

TEST(ChildProcessTest, EndReachesEveryGroupOfASession)
{
    // Job control gives the background job a group of its own.
    ChildProcess child = ChildProcess::start(
        session(u"/bin/bash"_s, u"trap '' HUP; set -m; sleep 1000 & echo ready; wait"_s));
    ASSERT_EQ(readLine(child.standardOutput()), "ready");

    child.end(10ms);

    EXPECT_EQ(child.exitCode(), SIGKILL);
    EXPECT_EQ(readToEnd(child.standardOutput()), "");
}

TEST(ChildProcessTest, EndWakesAStoppedChild)
{
    ChildProcess child
        = ChildProcess::start(shell(u"trap 'exit 5' TERM; echo $$; kill -STOP $$; sleep 1000"_s));
    const auto pid = static_cast<id_t>(std::stoi(readLine(child.standardOutput())));
    siginfo_t stopped{};
    ASSERT_EQ(::waitid(P_PID, pid, &stopped, WSTOPPED), 0);

    child.end(30s);

    EXPECT_EQ(child.exitCode(), 5);
}

TEST(ChildProcessTest, EndAfterTheExitChangesNothing)
{
    ChildProcess child = ChildProcess::start(shell(u"exit 6"_s));
    ASSERT_EQ(child.exitCode(), 6);

    child.end(1s);

    EXPECT_EQ(child.exitCode(), 6);
}

TEST(ChildProcessTest, DestructionKillsARunningChild)
{
    std::optional<ChildProcess> child(ChildProcess::start(shell(u"sleep 1000 & sleep 1000"_s)));
    const FileDescriptor output(::fcntl(child->standardOutput(), F_DUPFD_CLOEXEC, 3));

    child.reset();

    EXPECT_EQ(readToEnd(output.get()), "");
}

} // namespace torvi
