// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/ProcessExecutor.h"

#include "GCloudCLI/BrowserAuthHandler.h"
#include "GCloudCLI/FileDescriptor.h"
#include "GCloudCLI/GCloudPathResolver.h"
#include "GCloudModels/AppError.h"
#include "tests/support/ScriptFolder.h"

#include <QCoreApplication>
#include <QScopeGuard>
#include <qcoro/qcorotask.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <condition_variable>
#include <csignal>
#include <fcntl.h>
#include <mutex>
#include <sys/stat.h>
#include <thread>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace torvi {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kAddress = "https://accounts.google.com/o/oauth2/auth?response_type=code"
                          "&redirect_uri=http%3A%2F%2Flocalhost%3A8085%2F&state=aB3";

class FixedPath final : public GCloudPathResolving
{
public:
    explicit FixedPath(QString path)
        : m_path(std::move(path))
    {
    }

    [[nodiscard]] QString resolve(std::stop_token /*stop*/) const override
    {
        return m_path;
    }

private:
    QString m_path;
};

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

/// A search that lasts until it is told the path or is stopped.
class SlowSearch final : public GCloudPathResolving
{
public:
    void find(const QString &path)
    {
        const std::lock_guard guard(m_lock);
        m_path = path;
        m_changed.notify_all();
    }

    [[nodiscard]] QString resolve(std::stop_token stop) const override
    {
        std::unique_lock lock(m_lock);
        if (!m_changed.wait(lock, std::move(stop), [this] { return m_path.has_value(); })) {
            throw AppError::gcloudNotFound();
        }
        return *m_path;
    }

private:
    mutable std::mutex m_lock;
    mutable std::condition_variable_any m_changed;
    std::optional<QString> m_path;
};

/// Remembers the addresses; each one is also acknowledged by a line in a FIFO, when there is one,
/// so that a script can go on as soon as its address has arrived.
class RecordingHandler final : public BrowserAuthHandler
{
public:
    QStringList addresses;
    std::thread::id thread;
    QString fifo;

    void openAuthURL(const QString &url) override
    {
        addresses.append(url);
        thread = std::this_thread::get_id();
        QFile acknowledgement(fifo);
        if (!fifo.isEmpty() && acknowledgement.open(QIODevice::WriteOnly)) {
            acknowledgement.write("seen\n");
        }
    }
};

/// What became of a call whose end nobody waits for at once.
struct Outcome
{
    std::optional<GCloudResult> result;
    std::optional<AppError> error;

    [[nodiscard]] bool isKnown() const
    {
        return result.has_value() || error.has_value();
    }
};

QCoro::Task<> record(QCoro::Task<GCloudResult> call, std::shared_ptr<Outcome> outcome)
{
    try {
        outcome->result = co_await call;
    } catch (const AppError &error) {
        outcome->error = error;
    }
}

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

/// A script in the place of gcloud, with the folder of the test in $dir and a FIFO in $fifo.
class ProcessExecutorTest : public testing::Test
{
protected:
    ScriptFolder folder;
    QString gcloud = folder.path(u"gcloud"_s);
    QString fifo = makeFifo(u"fifo"_s);
    std::shared_ptr<const GCloudPathResolving> search = std::make_shared<FixedPath>(gcloud);
    std::shared_ptr<RecordingHandler> handler;
    std::chrono::milliseconds drain = 100ms;
    std::unique_ptr<ProcessExecutor> executor;

    [[nodiscard]] QString makeFifo(const QString &name) const
    {
        EXPECT_EQ(::mkfifo(QFile::encodeName(folder.path(name)).constData(), 0600), 0);
        return folder.path(name);
    }

    void script(const QByteArray &body) const
    {
        folder.writeScript(u"gcloud"_s,
                           "dir='" + folder.path().toUtf8() + "'; fifo=$dir/fifo\n" + body);
    }

    QCoro::Task<GCloudResult> execute(const GCloudCommand &command = GCloudCommand::version())
    {
        if (!executor) {
            executor = std::make_unique<ProcessExecutor>(search, handler, drain);
        }
        return executor->execute(command);
    }

    std::shared_ptr<Outcome> startRun(const GCloudCommand &command = GCloudCommand::version())
    {
        auto outcome = std::make_shared<Outcome>();
        record(execute(command), outcome);
        return outcome;
    }

    // Not QCoro::waitFor(), which waits for ever when the task throws.
    Outcome runToTheEnd(const GCloudCommand &command)
    {
        const auto outcome = startRun(command);
        settle(*outcome);
        return *outcome;
    }

    GCloudResult run(const GCloudCommand &command = GCloudCommand::version())
    {
        const Outcome outcome = runToTheEnd(command);
        EXPECT_FALSE(outcome.error.has_value()) << outcome.error->what();
        return outcome.result.value_or(GCloudResult());
    }

    std::optional<AppError> runToError(const GCloudCommand &command = GCloudCommand::version())
    {
        return runToTheEnd(command).error;
    }

    /// Blocks until the script opens the FIFO for writing; what is read from the descriptor ends
    /// when the script and all its children are gone.
    [[nodiscard]] FileDescriptor waitForTheScript() const
    {
        return FileDescriptor(::open(QFile::encodeName(fifo).constData(), O_RDONLY | O_CLOEXEC));
    }

    static void settle(const Outcome &outcome)
    {
        while (!outcome.isKnown()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    void kill(const QString &pidFile) const
    {
        ::kill(folder.read(pidFile).trimmed().toInt(), SIGKILL);
    }
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
    const auto start = Clock::now();

    EXPECT_EQ(run().exitCode, 0);

    EXPECT_GE(Clock::now() - start, 100ms);
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

class SignInTest : public ProcessExecutorTest
{
protected:
    void SetUp() override
    {
        handler = std::make_shared<RecordingHandler>();
    }

    /// A script that prints `chunks` on standard error, each only when the one before it has been
    /// taken out of the pipe.
    void scriptPrinting(const QByteArrayList &chunks) const
    {
        QByteArray body = "import fcntl, os, sys, termios, time\n"
                          "def emptied():\n"
                          "    return fcntl.ioctl(2, termios.FIONREAD, bytes(4)) == bytes(4)\n"
                          "for name in sys.argv[1:]:\n"
                          "    os.write(2, open(name, 'rb').read())\n"
                          "    while not emptied():\n"
                          "        time.sleep(0.001)\n";
        folder.write(u"chunks.py"_s, body);
        QByteArray names;
        for (const QByteArray &chunk : chunks) {
            names += " '" + folder.write(u"chunk%1"_s.arg(names.size()), chunk).toUtf8() + "'";
        }
        script("exec python3 $dir/chunks.py" + names);
    }
};

TEST_F(SignInTest, TheHandlerGetsTheWholeAddressOnce)
{
    const QByteArray text
        = QByteArray("Your browser has been opened to visit:\n\n    ") + kAddress + "\n";
    for (const GCloudCommand &command :
         { GCloudCommand::applicationDefaultLogin(),
           GCloudCommand::adcLoginWithImpersonation(u"a@p.iam.gserviceaccount.com"_s) }) {
        scriptPrinting({ text });
        handler->addresses.clear();

        EXPECT_EQ(run(command), (GCloudResult{ 0, u""_s, QString::fromUtf8(text) }));

        EXPECT_EQ(handler->addresses, QStringList(QString::fromLatin1(kAddress)));
    }
}

TEST_F(SignInTest, TheHandlerIsCalledOnABackgroundThreadWhileGcloudWaits)
{
    handler->fifo = fifo;
    script(QByteArray("echo '") + kAddress + "' >&2; read line < $fifo; echo $line");

    EXPECT_EQ(run(GCloudCommand::applicationDefaultLogin()).stdout, u"seen\n"_s);

    EXPECT_NE(handler->thread, std::this_thread::get_id());
}

TEST_F(SignInTest, AnAddressOnStandardOutputIsNone)
{
    script(QByteArray("echo '") + kAddress + "'");

    EXPECT_EQ(run(GCloudCommand::applicationDefaultLogin()).exitCode, 0);

    EXPECT_EQ(handler->addresses, QStringList());
}

TEST_F(SignInTest, AnAddressOfACommandWithoutASignInIsNone)
{
    scriptPrinting({ kAddress });

    EXPECT_EQ(run(GCloudCommand::setProject(u"p"_s)).stderr, QString::fromLatin1(kAddress));

    EXPECT_EQ(handler->addresses, QStringList());
}

TEST_F(SignInTest, WithoutAHandlerALoginYieldsItsResult)
{
    handler = nullptr;
    scriptPrinting({ kAddress });

    EXPECT_EQ(run(GCloudCommand::applicationDefaultLogin()),
              (GCloudResult{ 0, u""_s, QString::fromLatin1(kAddress) }));
}

TEST_F(SignInTest, EachChunkWithAnAddressCallsTheHandler)
{
    scriptPrinting({ QByteArray(kAddress) + "&1\n", "Waiting\n", QByteArray(kAddress) + "&2\n" });

    EXPECT_EQ(run(GCloudCommand::applicationDefaultLogin()).exitCode, 0);

    EXPECT_EQ(handler->addresses,
              QStringList({ QString::fromLatin1(kAddress) + u"&1"_s,
                            QString::fromLatin1(kAddress) + u"&2"_s }));
}

TEST_F(SignInTest, AnAddressThatIsSplitBetweenTwoChunksIsNotFound)
{
    const QByteArray address(kAddress);
    scriptPrinting({ address.first(20), address.sliced(20) });

    EXPECT_EQ(run(GCloudCommand::applicationDefaultLogin()).stderr, QString::fromLatin1(kAddress));

    EXPECT_EQ(handler->addresses, QStringList());
}

TEST_F(SignInTest, AChunkThatIsNotUtf8IsSkipped)
{
    scriptPrinting({ QByteArray(kAddress) + "&1 \xff\n", QByteArray(kAddress) + "&2\n" });

    EXPECT_EQ(run(GCloudCommand::applicationDefaultLogin()).stderr, u""_s);

    EXPECT_EQ(handler->addresses, QStringList(QString::fromLatin1(kAddress) + u"&2"_s));
}

/// The executor goes away, or the program is quit, while calls are pending.
class ProcessExecutorEndTest : public ProcessExecutorTest
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
