// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/FileEventStream.h"

#include "tests/support/BackgroundThread.h"
#include "tests/support/NoDescriptors.h"
#include "tests/support/TemporaryTree.h"

#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace torvi {

using std::chrono::steady_clock;

/// Counts the reports and lets the test wait for them.
class FileEventStreamTest : public testing::Test
{
protected:
    TemporaryTree tree;

    FileEventStreamTest()
    {
        tree.makeDirectory("one/deep");
        tree.makeDirectory("two");
        tree.write("one/file");
    }

    [[nodiscard]] QString path(const std::string &name) const
    {
        return QString::fromStdString(tree.path(name));
    }

    [[nodiscard]] std::unique_ptr<FileEventStream> watch(const QStringList &paths,
                                                         std::chrono::milliseconds latency = 1ms)
    {
        return FileEventStream::create(paths, latency, [this] {
            const std::lock_guard guard(m_lock);
            ++m_reports;
            m_lastReport = steady_clock::now();
            m_lastThread = std::this_thread::get_id();
            m_lastContent = tree.read("one/file");
            m_condition.notify_all();
        });
    }

    [[nodiscard]] int reports()
    {
        const std::lock_guard guard(m_lock);
        return m_reports;
    }

    void waitUntil(const std::function<bool()> &condition)
    {
        std::unique_lock guard(m_lock);
        m_condition.wait(guard, condition);
    }

    /// When the last of at least that many came.
    steady_clock::time_point waitForReports(int reports)
    {
        waitUntil([&] { return m_reports >= reports; });
        const std::lock_guard guard(m_lock);
        return m_lastReport;
    }

    std::mutex m_lock;
    std::condition_variable m_condition;
    int m_reports = 0;
    steady_clock::time_point m_lastReport;
    std::thread::id m_lastThread;
    std::string m_lastContent;
};

TEST_F(FileEventStreamTest, ReportsAChangeMadeAtOnceAfterTheStart)
{
    const auto stream = watch({ path("one") });

    tree.write("one/file");

    waitForReports(1);
}

TEST_F(FileEventStreamTest, ReportsFromAThreadOfItsOwn)
{
    const auto stream = watch({ path("one") });

    tree.write("one/file");

    waitUntil([this] { return m_reports > 0 && m_lastThread != std::this_thread::get_id(); });
}

TEST_F(FileEventStreamTest, NeverReportsBeforeTheLatencyHasPassed)
{
    const auto stream = watch({ path("one/deep") }, 30ms);

    for (int change = 0; change < 5; ++change) {
        const int before = reports();
        const auto changed = steady_clock::now();
        tree.makeDirectory("one/deep/" + std::to_string(change)); // one event, so one batch
        EXPECT_GE(waitForReports(before + 1) - changed, 30ms);
    }
}

TEST_F(FileEventStreamTest, ReportsChangesWithinTheLatencyOnce)
{
    constexpr auto kLatency = 50ms;
    bool isOneBatch = false;
    while (!isOneBatch) { // again, if the machine was too busy for all to happen in time
        const auto stream = watch({ path("one") }, kLatency);
        const int before = reports();
        const auto begin = steady_clock::now();
        for (int change = 0; change < 10; ++change) {
            tree.append("one/file");
        }
        isOneBatch = steady_clock::now() < begin + kLatency;
        waitForReports(before + 1);

        // A report too many would be that of a batch begun before this change: too early for it.
        const auto changed = steady_clock::now();
        tree.append("one/file");
        const auto reported = waitForReports(before + 2);
        EXPECT_TRUE(!isOneBatch || reported - changed >= kLatency);
    }
}

TEST_F(FileEventStreamTest, ReportsAfterTheLastOfManyChanges)
{
    const auto stream = watch({ path("one") });
    const std::string last = "200";

    for (int change = 0; change <= 200; ++change) {
        tree.write("one/file", std::to_string(change));
    }

    waitUntil([&] { return m_lastContent == last; });
}

TEST_F(FileEventStreamTest, SeesIntoANewDirectory)
{
    const auto stream = watch({ path("one") });
    for (int round = 0; round < 50; ++round) {
        const int before = reports();
        tree.makeDirectory("one/new/" + std::to_string(round));
        waitForReports(before + 1);

        const int afterwards = reports();
        tree.write("one/new/" + std::to_string(round) + "/content");
        waitForReports(afterwards + 1);
    }
}

TEST_F(FileEventStreamTest, WatchesSeveralDirectories)
{
    const auto stream = watch({ path("one"), path("two") });

    tree.makeDirectory("two/new");
    waitForReports(1);
    tree.makeDirectory("one/new");
    waitForReports(2);
}

TEST_F(FileEventStreamTest, WatchesWhatItCanOfSeveralPaths)
{
    const auto stream = watch({ QString(), path("two") });
    ASSERT_TRUE(stream);

    tree.write("two/file");
    waitForReports(1);
}

TEST_F(FileEventStreamTest, DoesNotExistWhenNothingCanBeWatched)
{
    EXPECT_FALSE(watch({}));
    EXPECT_FALSE(watch({ QString() }));
}

TEST_F(FileEventStreamTest, DoesNotExistWithoutFileDescriptors)
{
    const NoDescriptors noDescriptors;

    EXPECT_FALSE(watch({ path("one") }));
}

TEST_F(FileEventStreamTest, EndsAtOnceDuringABatch)
{
    auto stream = watch({ path("one") }, 1h);
    tree.write("one/file");

    stream.reset();

    EXPECT_EQ(m_reports, 0);
    EXPECT_TRUE(m_lastContent.empty());
}

TEST_F(FileEventStreamTest, ReportsNothingAfterItsEnd)
{
    for (int round = 0; round < 20; ++round) {
        auto stream = watch({ path("one") }, 0ms);
        tree.write("one/file");
        stream.reset();
        const int reports = m_reports;

        tree.write("one/file");

        EXPECT_EQ(m_reports, reports);
    }
}

TEST_F(FileEventStreamTest, SleepsWhileNothingChanges)
{
    constexpr int kWaitingForChanges = 2; // the events and the request to stop
    const auto stream = watch({ path("one/deep") });
    tree.makeDirectory("one/deep/new"); // its report shows that the thread is past its start
    waitForReports(1);
    const BackgroundThread thread = BackgroundThread::named("torvi-files").at(0);
    while (!thread.isPolling(kWaitingForChanges)) {
        std::this_thread::yield();
    }
    const std::string sleeps = thread.sleeps();
    ASSERT_FALSE(sleeps.empty());

    tree.write("unrelated");
    EXPECT_EQ(tree.read("one/file"), "content");
    for (const auto &entry : std::filesystem::directory_iterator(tree.path("one/deep"))) {
        EXPECT_TRUE(entry.exists());
    }

    EXPECT_TRUE(thread.isPolling(kWaitingForChanges));
    EXPECT_EQ(thread.sleeps(), sleeps);
    tree.makeDirectory("one/deep/newer");
    while (thread.sleeps() == sleeps) {
        std::this_thread::yield();
    }
}

} // namespace torvi
