// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/FileWatcher.h"

#include "tests/support/BackgroundThread.h"
#include "tests/support/ChangeConsumer.h"
#include "tests/support/NoDescriptors.h"
#include "tests/support/TemporaryTree.h"

#include <gtest/gtest.h>

#include <thread>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace torvi {

using std::chrono::steady_clock;

namespace {

constexpr auto kInterval = 300ms; // the one that Torvi runs with

/// A thread that was joined may be listed for a moment longer.
void waitForThreads(std::size_t count)
{
    while (BackgroundThread::named("torvi-files").size() != count) {
        std::this_thread::yield();
    }
}

std::ptrdiff_t openInotifyInstances()
{
    std::ptrdiff_t count = 0;
    for (const auto &entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code error; // the directory's own descriptor is gone by now
        count += std::filesystem::read_symlink(entry, error) == "anon_inode:inotify" ? 1 : 0;
    }
    return count;
}

} // namespace

class FileWatcherTest : public testing::Test
{
protected:
    TemporaryTree tree;

    FileWatcherTest()
    {
        tree.makeDirectory("gcloud/configurations");
        EXPECT_EQ(openInotifyInstances(), 0);
    }

    [[nodiscard]] std::unique_ptr<FileWatcher> watcher(std::chrono::milliseconds interval
                                                       = 1ms) const
    {
        return std::make_unique<FileWatcher>(
            QStringList{ QString::fromStdString(tree.path("gcloud")) }, interval);
    }

    void change() const
    {
        tree.write("gcloud/configurations/config_default");
    }
};

TEST_F(FileWatcherTest, MakesAnEventOfTheFirstChangeAfterTheStart)
{
    const auto watching = watcher();
    const ChangeConsumer consumer(watching->start());

    change();

    consumer.waitFor(1);
}

TEST_F(FileWatcherTest, DeliversNoEventEarly)
{
    const auto watching = watcher(kInterval);
    const ChangeConsumer consumer(watching->start());

    const auto changed = steady_clock::now();
    change();
    consumer.waitFor(1);

    EXPECT_GE(consumer.time(1) - changed, kInterval);
}

TEST_F(FileWatcherTest, MakesOneEventOfTwoChangesATenthOfASecondApart)
{
    bool wasInTime = false;
    while (!wasInTime) { // again, if the machine was too busy for the second to come in time
        const auto watching = watcher(kInterval);
        const ChangeConsumer consumer(watching->start());
        const auto begin = steady_clock::now();
        change();
        while (steady_clock::now() < begin + 100ms) {
            std::this_thread::yield();
        }
        change();
        wasInTime = steady_clock::now() < begin + kInterval;
        consumer.waitFor(1);

        // A second event of the two would arrive too early to be that of this change.
        const auto changed = steady_clock::now();
        change();
        consumer.waitFor(2);
        EXPECT_TRUE(!wasInTime || consumer.time(2) - changed >= kInterval);
    }
}

TEST_F(FileWatcherTest, MakesTwoEventsOfTwoChangesHalfASecondApart)
{
    const auto watching = watcher(kInterval);
    const ChangeConsumer consumer(watching->start());
    const auto begin = steady_clock::now();

    change();
    consumer.waitFor(1);
    while (steady_clock::now() < begin + 500ms) {
        std::this_thread::yield();
    }
    change();

    consumer.waitFor(2);
}

TEST_F(FileWatcherTest, MakesNoMoreEventsThanOneForEachInterval)
{
    constexpr auto kShort = 20ms;
    const auto watching = watcher(kShort);
    const ChangeConsumer consumer(watching->start());
    const auto begin = steady_clock::now();

    std::jthread writer([this](const std::stop_token &stop) {
        while (!stop.stop_requested()) {
            change();
        }
    });
    consumer.waitFor(10);
    writer.request_stop();
    writer.join();

    for (int event = 1; event <= 10; ++event) {
        EXPECT_GE(consumer.time(static_cast<std::size_t>(event)) - begin, event * kShort);
    }
}

TEST_F(FileWatcherTest, FinishesTheStreamWhenItCannotWatch)
{
    const auto watching = watcher();
    const auto start = [&] {
        const NoDescriptors noDescriptors;
        return watching->start();
    };

    const ChangeConsumer consumer(start());

    EXPECT_TRUE(consumer.hasEnded());
}

TEST_F(FileWatcherTest, CanStartAfterItCouldNot)
{
    const auto watching = watcher();
    {
        const NoDescriptors noDescriptors;
        const ChangeStream finished = watching->start();
    }
    const ChangeConsumer consumer(watching->start());

    change();

    consumer.waitFor(1);
}

TEST_F(FileWatcherTest, StopReleasesEverything)
{
    const auto watching = watcher();
    const ChangeConsumer consumer(watching->start());
    change();
    consumer.waitFor(1);
    EXPECT_EQ(openInotifyInstances(), 1);

    watching->stop();

    EXPECT_EQ(openInotifyInstances(), 0);
    waitForThreads(0);
}

TEST_F(FileWatcherTest, StopDoesNotFinishTheStream)
{
    const auto watching = watcher();
    const ChangeConsumer consumer(watching->start());

    watching->stop();
    QCoreApplication::processEvents();

    EXPECT_FALSE(consumer.hasEnded());
}

TEST_F(FileWatcherTest, StopIsHarmlessTwiceAndBeforeTheStart)
{
    const auto watching = watcher();
    watching->stop();
    const ChangeConsumer consumer(watching->start());

    watching->stop();
    watching->stop();

    EXPECT_EQ(openInotifyInstances(), 0);
    EXPECT_FALSE(consumer.hasEnded());
}

TEST_F(FileWatcherTest, StartsAgainAfterAStop)
{
    const auto watching = watcher();
    const ChangeConsumer before(watching->start());
    watching->stop();

    const ChangeConsumer after(watching->start());
    change();
    after.waitFor(1);

    EXPECT_EQ(before.count(), 0U);
}

TEST_F(FileWatcherTest, CancellingTheStreamReleasesEverything)
{
    const auto watching = watcher();
    ChangeConsumer consumer(watching->start());

    consumer.cancel();

    EXPECT_TRUE(consumer.hasEnded());
    EXPECT_EQ(openInotifyInstances(), 0);
    waitForThreads(0);
}

TEST_F(FileWatcherTest, CancellingAfterItsDestructionIsHarmless)
{
    auto watching = watcher();
    ChangeConsumer consumer(watching->start());
    watching.reset();
    EXPECT_FALSE(consumer.hasEnded());

    consumer.cancel();

    EXPECT_TRUE(consumer.hasEnded());
}

TEST_F(FileWatcherTest, DestructionDuringABatchReleasesEverything)
{
    auto watching = watcher(1h);
    const ChangeConsumer consumer(watching->start());
    change();

    watching.reset();

    EXPECT_EQ(openInotifyInstances(), 0);
    waitForThreads(0);
    EXPECT_EQ(consumer.count(), 0U);
}

TEST_F(FileWatcherTest, ASecondStartLeavesTheFirstStreamRunning)
{
    const auto watching = watcher();
    const ChangeConsumer first(watching->start());
    const ChangeConsumer second(watching->start());

    change();

    first.waitFor(1);
    second.waitFor(1);
}

TEST_F(FileWatcherTest, StopStopsOnlyTheNewestOfTwoStreams)
{
    const auto watching = watcher();
    const ChangeConsumer first(watching->start());
    const ChangeConsumer second(watching->start());

    watching->stop();
    watching->stop();
    EXPECT_EQ(openInotifyInstances(), 1);
    change();
    first.waitFor(1);

    EXPECT_EQ(second.count(), 0U);
}

TEST_F(FileWatcherTest, CancellingTheFirstOfTwoStreamsStopsTheNewest)
{
    const auto watching = watcher();
    ChangeConsumer first(watching->start());
    const ChangeConsumer second(watching->start());

    first.cancel();

    EXPECT_EQ(openInotifyInstances(), 1);
    EXPECT_FALSE(second.hasEnded());
}

TEST_F(FileWatcherTest, DestructionReleasesAllStreams)
{
    auto watching = watcher();
    const ChangeConsumer first(watching->start());
    const ChangeConsumer second(watching->start());
    EXPECT_EQ(openInotifyInstances(), 2);

    watching.reset();

    EXPECT_EQ(openInotifyInstances(), 0);
    waitForThreads(0);
}

TEST_F(FileWatcherTest, SeesADirectoryThatComesAfterTheStart)
{
    tree.remove("gcloud");
    const auto watching = watcher();
    const ChangeConsumer consumer(watching->start());

    tree.makeDirectory("gcloud/configurations");
    consumer.waitFor(1);
    change();

    consumer.waitFor(2);
}

} // namespace torvi
