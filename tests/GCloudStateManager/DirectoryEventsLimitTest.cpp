// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/DirectoryEvents.h"
#include "tests/support/ForkedProcess.h"
#include "tests/support/TemporaryTree.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sched.h>

namespace torvi {

namespace {

constexpr int kRefused = 77;
constexpr int kWrong = 1;

/// Lets this process and its children have no more than `watches`; false when not allowed.
bool limitWatches(int watches)
{
    if (::unshare(CLONE_NEWUSER) != 0) {
        return false;
    }
    std::ofstream limit("/proc/sys/user/max_inotify_watches");
    limit << watches;
    return !limit.flush().fail();
}

int stepsTo(const std::string &path)
{
    return static_cast<int>(std::count(path.begin(), path.end(), '/'));
}

} // namespace

/// Each test runs in a process of its own, with a limit of its own.
class DirectoryEventsLimitTest : public testing::Test
{
protected:
    TemporaryTree tree;

    DirectoryEventsLimitTest()
    {
        tree.makeDirectory("gcloud/configurations");
        tree.makeDirectory("gcloud/logs/deep");
        tree.write("gcloud/file");
        tree.write("gcloud/logs/deep/file");
    }

    void expectWithWatches(int watches, const std::function<bool()> &expectation) const
    {
        const int code = exitCodeOf([&] {
            if (!limitWatches(watches)) {
                return kRefused;
            }
            return expectation() ? 0 : kWrong;
        });
        if (code == kRefused) {
            GTEST_SKIP() << "no user namespace to limit the watches in";
        }
        EXPECT_EQ(code, 0);
    }
};

TEST_F(DirectoryEventsLimitTest, LeavesOutTheDeepestDirectories)
{
    // The way with the directory itself, and what is directly below it.
    const int enough = stepsTo(tree.path("gcloud")) + 2;

    expectWithWatches(enough, [this] {
        DirectoryEvents events(tree.path("gcloud"));
        tree.append("gcloud/file");
        const bool seesFile = events.takeChanges();
        tree.write("gcloud/configurations/config_default");
        const bool seesConfiguration = events.takeChanges();
        tree.append("gcloud/logs/deep/file");
        const bool seesDeepFile = events.takeChanges();
        return seesFile && seesConfiguration && !seesDeepFile;
    });
}

TEST_F(DirectoryEventsLimitTest, WatchesNothingWithoutASingleWatch)
{
    expectWithWatches(0, [this] { return !DirectoryEvents(tree.path("gcloud")).isWatching(); });
}

} // namespace torvi
