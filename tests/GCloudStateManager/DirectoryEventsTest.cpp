// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/DirectoryEvents.h"

#include "GCloudCLI/FileDescriptor.h"
#include "tests/support/NoDescriptors.h"
#include "tests/support/TemporaryTree.h"

#include <gtest/gtest.h>

#include <fcntl.h>

namespace torvi {

namespace fs = std::filesystem;

/// Watches "home/config/gcloud". The kernel queues an event before the call that causes it returns,
/// so that nothing has to be waited for.
class DirectoryEventsTest : public testing::Test
{
protected:
    TemporaryTree tree;

    DirectoryEventsTest()
    {
        tree.makeDirectory("home/config/gcloud/configurations");
        tree.makeDirectory("elsewhere");
        tree.write("home/config/gcloud/active_config", "default");
        tree.write("home/config/gcloud/configurations/config_default");
    }

    [[nodiscard]] DirectoryEvents watch(const std::string &name = "home/config/gcloud") const
    {
        return DirectoryEvents(tree.path(name));
    }

    /// Whether a change of that file, which must exist already, is noticed.
    [[nodiscard]] bool notices(DirectoryEvents &events, const std::string &name) const
    {
        EXPECT_FALSE(events.takeChanges()) << "left over before the change of " << name;
        tree.append(name);
        return events.takeChanges();
    }
};

TEST_F(DirectoryEventsTest, NoticesNothingWhenNothingHappens)
{
    DirectoryEvents events = watch();

    EXPECT_TRUE(events.isWatching());
    EXPECT_FALSE(events.takeChanges());
}

struct Action
{
    const char *name;
    void (*act)(const TemporaryTree &tree);
};

void PrintTo(const Action &action, std::ostream *out)
{
    *out << action.name;
}

std::string rowName(const testing::TestParamInfo<Action> &row)
{
    return row.param.name;
}

class DirectoryEventsChangeTest : public DirectoryEventsTest,
                                  public testing::WithParamInterface<Action>
{
};

TEST_P(DirectoryEventsChangeTest, IsNoticedOnce)
{
    DirectoryEvents events = watch();

    GetParam().act(tree);

    EXPECT_TRUE(events.takeChanges());
    EXPECT_FALSE(events.takeChanges());
}

const std::string kRoot = "home/config/gcloud/";

INSTANTIATE_TEST_SUITE_P(
    , DirectoryEventsChangeTest,
    testing::Values(
        Action{ "FileMade", [](const TemporaryTree &tree) { tree.write(kRoot + "gce"); } },
        Action{ "FileRewrittenInPlace",
                [](const TemporaryTree &tree) { tree.write(kRoot + "active_config", "other"); } },
        Action{ "FileExtended",
                [](const TemporaryTree &tree) { tree.append(kRoot + "active_config"); } },
        Action{ "FileReplacedByRename",
                [](const TemporaryTree &tree) {
                    tree.write("elsewhere/new");
                    tree.move("elsewhere/new", kRoot + "active_config");
                } },
        Action{ "FileRemoved",
                [](const TemporaryTree &tree) { tree.remove(kRoot + "active_config"); } },
        Action{ "FileMovedAway",
                [](const TemporaryTree &tree) {
                    tree.move(kRoot + "active_config", "elsewhere/active_config");
                } },
        Action{ "FileModeChanged",
                [](const TemporaryTree &tree) {
                    fs::permissions(tree.path(kRoot + "active_config"), fs::perms::owner_read);
                } },
        Action{ "FileInSubdirectoryRewritten",
                [](const TemporaryTree &tree) {
                    tree.write(kRoot + "configurations/config_default", "other");
                } },
        Action{ "DirectoryMade",
                [](const TemporaryTree &tree) { tree.makeDirectory(kRoot + "logs"); } },
        Action{ "DirectoryRemoved",
                [](const TemporaryTree &tree) { tree.remove(kRoot + "configurations"); } },
        Action{ "LinkMade",
                [](const TemporaryTree &tree) { tree.link(kRoot + "link", "elsewhere"); } },
        Action{ "DirectoryItselfRemoved",
                [](const TemporaryTree &tree) { tree.remove("home/config/gcloud"); } },
        Action{ "DirectoryItselfMovedAway",
                [](const TemporaryTree &tree) { tree.move("home/config/gcloud", "elsewhere/g"); } },
        Action{ "DirectoryAboveMovedAway",
                [](const TemporaryTree &tree) { tree.move("home", "elsewhere/home"); } }),
    rowName);

class DirectoryEventsOtherTest : public DirectoryEventsTest,
                                 public testing::WithParamInterface<Action>
{
};

TEST_P(DirectoryEventsOtherTest, IsNotNoticed)
{
    DirectoryEvents events = watch();

    GetParam().act(tree);

    EXPECT_FALSE(events.takeChanges());
}

INSTANTIATE_TEST_SUITE_P(
    , DirectoryEventsOtherTest,
    testing::Values(
        Action{ "FileRead",
                [](const TemporaryTree &tree) {
                    EXPECT_EQ(tree.read(kRoot + "active_config"), "default");
                } },
        Action{ "DirectoryListed",
                [](const TemporaryTree &tree) {
                    for (const auto &entry :
                         fs::recursive_directory_iterator(tree.path("home/config/gcloud"))) {
                        EXPECT_TRUE(entry.exists());
                    }
                } },
        Action{ "FileMadeBeside", [](const TemporaryTree &tree) { tree.write("home/config/x"); } },
        Action{ "FileOfALongerNameMadeBeside",
                [](const TemporaryTree &tree) { tree.write("home/config/gcloud.lock"); } },
        Action{ "DirectoryMadeBeside",
                [](const TemporaryTree &tree) { tree.makeDirectory("home/config/other"); } },
        Action{ "FileMadeFurtherUp", [](const TemporaryTree &tree) { tree.write("home/x"); } },
        Action{ "ModeOfADirectoryAboveChanged",
                [](const TemporaryTree &tree) {
                    fs::permissions(tree.path("home/config"), fs::perms::owner_all);
                } }),
    rowName);

TEST_F(DirectoryEventsTest, SeesIntoADirectoryMadeLater)
{
    DirectoryEvents events = watch();
    tree.makeDirectory(kRoot + "logs");
    EXPECT_TRUE(events.takeChanges());

    tree.write(kRoot + "logs/log");

    EXPECT_TRUE(events.takeChanges());
}

TEST_F(DirectoryEventsTest, SeesIntoDirectoriesMadeAtOnceBeforeItLooked)
{
    DirectoryEvents events = watch();
    tree.makeDirectory(kRoot + "logs/2026/11");
    tree.write(kRoot + "logs/2026/11/log");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_TRUE(notices(events, kRoot + "logs/2026/11/log"));
}

TEST_F(DirectoryEventsTest, SeesIntoADirectoryWhoseNameIsNoUtf8)
{
    DirectoryEvents events = watch();
    tree.makeDirectory(kRoot + "caf\xe9");
    EXPECT_TRUE(events.takeChanges());

    tree.write(kRoot + "caf\xe9/file");

    EXPECT_TRUE(events.takeChanges());
}

TEST_F(DirectoryEventsTest, SeesIntoADirectoryRemovedAndMadeAgain)
{
    DirectoryEvents events = watch();
    tree.remove(kRoot + "configurations");
    tree.makeDirectory(kRoot + "configurations");
    tree.write(kRoot + "configurations/config_default");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_TRUE(notices(events, kRoot + "configurations/config_default"));
}

TEST_F(DirectoryEventsTest, SeesIntoADirectoryMovedIn)
{
    DirectoryEvents events = watch();
    tree.makeDirectory("elsewhere/new/deep");
    tree.write("elsewhere/new/deep/file");
    EXPECT_FALSE(events.takeChanges());
    tree.move("elsewhere/new", kRoot + "new");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_TRUE(notices(events, kRoot + "new/deep/file"));
}

TEST_F(DirectoryEventsTest, LooksNoMoreIntoADirectoryMovedOut)
{
    tree.makeDirectory(kRoot + "configurations/deep");
    tree.write(kRoot + "configurations/deep/file");
    DirectoryEvents events = watch();
    tree.move(kRoot + "configurations", "elsewhere/configurations");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_FALSE(notices(events, "elsewhere/configurations/config_default"));
    EXPECT_FALSE(notices(events, "elsewhere/configurations/deep/file"));
}

TEST_F(DirectoryEventsTest, FollowsADirectoryRenamedInside)
{
    tree.makeDirectory(kRoot + "configurations/deep");
    tree.write(kRoot + "configurations/deep/file");
    DirectoryEvents events = watch();
    tree.move(kRoot + "configurations", kRoot + "renamed");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_TRUE(notices(events, kRoot + "renamed/deep/file"));
}

TEST_F(DirectoryEventsTest, FollowsADirectoryMovedIntoOneJustMade)
{
    tree.makeDirectory(kRoot + "configurations/deep");
    tree.write(kRoot + "configurations/deep/file");
    DirectoryEvents events = watch();
    tree.makeDirectory(kRoot + "new");
    tree.move(kRoot + "configurations", kRoot + "new/configurations");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_TRUE(notices(events, kRoot + "new/configurations/deep/file"));
}

TEST_F(DirectoryEventsTest, FollowsDirectoriesThatSwapTheirNames)
{
    tree.makeDirectory(kRoot + "one");
    tree.makeDirectory(kRoot + "two");
    tree.write(kRoot + "one/first");
    tree.write(kRoot + "two/second");
    DirectoryEvents events = watch();
    tree.move(kRoot + "one", kRoot + "three");
    tree.move(kRoot + "two", kRoot + "one");
    tree.move(kRoot + "three", kRoot + "two");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_TRUE(notices(events, kRoot + "one/second"));
    EXPECT_TRUE(notices(events, kRoot + "two/first"));
}

TEST_F(DirectoryEventsTest, DoesNotFollowALinkBelow)
{
    tree.write("elsewhere/file");
    tree.link(kRoot + "link", "elsewhere");
    DirectoryEvents events = watch();

    EXPECT_FALSE(notices(events, "elsewhere/file"));
}

TEST_F(DirectoryEventsTest, DoesNotFollowALinkMadeLater)
{
    tree.write("elsewhere/file");
    DirectoryEvents events = watch();
    tree.link(kRoot + "link", "elsewhere");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_FALSE(notices(events, "elsewhere/file"));
}

TEST_F(DirectoryEventsTest, NoticesTheDirectoryRemovedAndMadeAgain)
{
    DirectoryEvents events = watch();

    tree.remove("home/config/gcloud");
    EXPECT_TRUE(events.takeChanges());
    tree.makeDirectory("home/config/gcloud");
    EXPECT_TRUE(events.takeChanges());
    tree.write(kRoot + "active_config");
    EXPECT_TRUE(events.takeChanges());
}

TEST_F(DirectoryEventsTest, NoticesTheDirectoryReplacedBeforeItLooked)
{
    DirectoryEvents events = watch();
    tree.remove("home/config/gcloud");
    tree.makeDirectory("home/config/gcloud");
    tree.write(kRoot + "active_config");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_TRUE(notices(events, kRoot + "active_config"));
}

TEST_F(DirectoryEventsTest, NoticesTheRemovalOfADirectoryThatIsInUse)
{
    DirectoryEvents events = watch();
    const std::string path = tree.path("home/config/gcloud");
    const FileDescriptor user(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ASSERT_TRUE(user.isOpen());

    tree.remove("home/config/gcloud");
    EXPECT_TRUE(events.takeChanges());
    tree.makeDirectory("home/config/gcloud");
    EXPECT_TRUE(events.takeChanges());
    tree.write(kRoot + "active_config");
    EXPECT_TRUE(events.takeChanges());
}

TEST_F(DirectoryEventsTest, AwaitsADirectoryThatIsMissing)
{
    tree.remove("home");
    DirectoryEvents events = watch();
    EXPECT_TRUE(events.isWatching());

    tree.write("unrelated");
    EXPECT_FALSE(events.takeChanges());
    tree.makeDirectory("home");
    EXPECT_FALSE(events.takeChanges()) << "the directory itself is not there yet";
    tree.makeDirectory("home/config");
    tree.write("home/config/unrelated");
    EXPECT_FALSE(events.takeChanges());
    tree.makeDirectory("home/config/gcloud");
    EXPECT_TRUE(events.takeChanges());
    tree.write(kRoot + "active_config");
    EXPECT_TRUE(events.takeChanges());
}

TEST_F(DirectoryEventsTest, SeesIntoAMissingDirectoryMadeWithAllAboveItAtOnce)
{
    tree.remove("home");
    DirectoryEvents events = watch();
    tree.makeDirectory("home/config/gcloud/configurations");
    tree.write(kRoot + "configurations/config_default");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_TRUE(notices(events, kRoot + "configurations/config_default"));
}

TEST_F(DirectoryEventsTest, SeesIntoAMissingDirectoryThatIsMovedIntoPlace)
{
    tree.move("home", "away");
    DirectoryEvents events = watch();
    tree.move("away", "home");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_TRUE(notices(events, kRoot + "active_config"));
}

TEST_F(DirectoryEventsTest, AwaitsAMissingDirectoryWhenWhatIsAboveItGoesToo)
{
    tree.remove("home/config/gcloud");
    DirectoryEvents events = watch();

    tree.remove("home");
    EXPECT_FALSE(events.takeChanges());
    tree.makeDirectory("home/config/gcloud");
    EXPECT_TRUE(events.takeChanges());
    tree.write(kRoot + "active_config");
    EXPECT_TRUE(events.takeChanges());
}

TEST_F(DirectoryEventsTest, TakesAFileInItsPlaceForMissing)
{
    tree.remove("home/config/gcloud");
    tree.write("home/config/gcloud");
    DirectoryEvents events = watch();
    EXPECT_FALSE(notices(events, "home/config/gcloud"));

    tree.remove("home/config/gcloud");
    tree.makeDirectory("home/config/gcloud");
    EXPECT_TRUE(events.takeChanges());

    tree.write(kRoot + "active_config");
    EXPECT_TRUE(events.takeChanges());
}

TEST_F(DirectoryEventsTest, LooksNoMoreIntoTheDirectoryAfterItWasMovedAway)
{
    DirectoryEvents events = watch();
    tree.move("home/config/gcloud", "elsewhere/gcloud");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_FALSE(notices(events, "elsewhere/gcloud/active_config"));
    EXPECT_FALSE(notices(events, "elsewhere/gcloud/configurations/config_default"));
}

TEST_F(DirectoryEventsTest, SeesIntoTheDirectoryThatTookItsPlace)
{
    tree.makeDirectory("elsewhere/gcloud");
    tree.write("elsewhere/gcloud/active_config");
    DirectoryEvents events = watch();
    tree.move("home/config/gcloud", "elsewhere/old");
    EXPECT_TRUE(events.takeChanges());
    tree.move("elsewhere/gcloud", "home/config/gcloud");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_TRUE(notices(events, kRoot + "active_config"));
}

TEST_F(DirectoryEventsTest, SeesIntoTheDirectoryThatSwappedPlacesWithIt)
{
    tree.makeDirectory("elsewhere/gcloud");
    tree.write("elsewhere/gcloud/active_config");
    DirectoryEvents events = watch();
    const std::string one = tree.path("home/config/gcloud");
    const std::string other = tree.path("elsewhere/gcloud");
    ASSERT_EQ(::renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE), 0);
    EXPECT_TRUE(events.takeChanges());

    EXPECT_FALSE(notices(events, "elsewhere/gcloud/active_config"));
    EXPECT_TRUE(notices(events, kRoot + "active_config"));
}

TEST_F(DirectoryEventsTest, SeesIntoTheDirectoryAfterOneAboveItWasReplaced)
{
    tree.makeDirectory("elsewhere/home/config/gcloud");
    tree.write("elsewhere/home/config/gcloud/active_config");
    DirectoryEvents events = watch();
    tree.move("home", "away");
    EXPECT_TRUE(events.takeChanges());
    EXPECT_FALSE(notices(events, "away/config/gcloud/active_config"));
    tree.move("elsewhere/home", "home");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_TRUE(notices(events, kRoot + "active_config"));
}

TEST_F(DirectoryEventsTest, FollowsALinkInItsPlace)
{
    tree.makeDirectory("elsewhere/configurations");
    tree.write("elsewhere/configurations/file");
    tree.link("link", "elsewhere");
    DirectoryEvents events = watch("link");

    EXPECT_TRUE(notices(events, "elsewhere/configurations/file"));
}

TEST_F(DirectoryEventsTest, FollowsTheLinkInItsPlaceToAnotherTarget)
{
    tree.write("elsewhere/file");
    tree.link("link", "elsewhere");
    DirectoryEvents events = watch("link");
    tree.link("link", "home/config/gcloud");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_FALSE(notices(events, "elsewhere/file"));
    EXPECT_TRUE(notices(events, kRoot + "active_config"));
}

TEST_F(DirectoryEventsTest, FollowsALinkAboveItToAnotherTarget)
{
    tree.makeDirectory("elsewhere/config/gcloud");
    tree.write("elsewhere/config/gcloud/active_config");
    tree.link("link", "elsewhere");
    DirectoryEvents events = watch("link/config/gcloud");
    EXPECT_TRUE(notices(events, "elsewhere/config/gcloud/active_config"));
    tree.link("link", "home");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_FALSE(notices(events, "elsewhere/config/gcloud/active_config"));
    EXPECT_TRUE(notices(events, kRoot + "active_config"));
}

TEST_F(DirectoryEventsTest, NoticesThatALinkAboveItGoesAndComesBack)
{
    tree.link("link", "home");
    DirectoryEvents events = watch("link/config/gcloud");

    tree.remove("link");
    EXPECT_TRUE(events.takeChanges());
    EXPECT_FALSE(notices(events, kRoot + "active_config"));
    tree.link("link", "home");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_TRUE(notices(events, kRoot + "active_config"));
}

TEST_F(DirectoryEventsTest, AwaitsTheTargetOfADanglingLink)
{
    tree.link("link", "elsewhere/gcloud");
    DirectoryEvents events = watch("link");

    tree.makeDirectory("elsewhere/gcloud");
    EXPECT_TRUE(events.takeChanges());
    tree.write("elsewhere/gcloud/active_config");
    EXPECT_TRUE(events.takeChanges());
}

TEST_F(DirectoryEventsTest, TakesALoopOfLinksForMissing)
{
    tree.link("link", "link");
    DirectoryEvents events = watch("link");
    EXPECT_FALSE(events.takeChanges());

    tree.link("link", "elsewhere");
    EXPECT_TRUE(events.takeChanges());
    tree.write("elsewhere/file");
    EXPECT_TRUE(events.takeChanges());
}

TEST_F(DirectoryEventsTest, UnderstandsAWayThatLeadsThroughTheDirectoryItself)
{
    tree.link(kRoot + "configurations/back", "home/config/gcloud");
    DirectoryEvents events = watch(kRoot + "configurations/back");
    EXPECT_TRUE(notices(events, kRoot + "active_config"));

    tree.move(kRoot + "configurations", kRoot + "renamed");
    EXPECT_TRUE(events.takeChanges());

    EXPECT_FALSE(notices(events, kRoot + "active_config")) << "the way there is gone";
}

TEST_F(DirectoryEventsTest, TakesAnUntidyPath)
{
    DirectoryEvents events = watch("home//./config/../config/gcloud/");

    EXPECT_TRUE(notices(events, kRoot + "active_config"));
}

TEST_F(DirectoryEventsTest, TakesAPathFromTheCurrentDirectory)
{
    const fs::path before = fs::current_path();
    fs::current_path(tree.path("home"));
    DirectoryEvents events("config/gcloud");
    fs::current_path(before);

    EXPECT_TRUE(notices(events, kRoot + "active_config"));
}

TEST_F(DirectoryEventsTest, WatchesNothingForAnEmptyPath)
{
    EXPECT_FALSE(DirectoryEvents("").isWatching());
}

TEST_F(DirectoryEventsTest, WatchesNothingWithoutInotify)
{
    const NoDescriptors noDescriptors;

    EXPECT_FALSE(watch().isWatching());
}

/// The kernel drops events when nobody takes them.
class DirectoryEventsOverflowTest : public DirectoryEventsTest
{
protected:
    void SetUp() override
    {
        std::ifstream limit("/proc/sys/fs/inotify/max_queued_events");
        limit >> m_queueSize;
        if (!limit || m_queueSize > 200'000) {
            GTEST_SKIP() << "the queue is too long to be filled";
        }
    }

    void overflow(const std::string &directory) const
    {
        tree.write(directory + "/flood");
        for (int events = 0; events <= m_queueSize; events += 4) {
            tree.move(directory + "/flood", directory + "/more");
            tree.move(directory + "/more", directory + "/flood");
        }
    }

private:
    int m_queueSize = 0;
};

TEST_F(DirectoryEventsOverflowTest, SeesIntoADirectoryWhoseMakingWasLost)
{
    DirectoryEvents events = watch();
    overflow("home/config/gcloud");
    tree.makeDirectory(kRoot + "logs");
    tree.write(kRoot + "logs/log");

    EXPECT_TRUE(events.takeChanges());

    EXPECT_TRUE(notices(events, kRoot + "logs/log"));
}

TEST_F(DirectoryEventsOverflowTest, FindsTheDirectoryWhoseMakingWasLost)
{
    tree.remove("home/config/gcloud");
    DirectoryEvents events = watch();
    overflow("home/config");
    tree.makeDirectory("home/config/gcloud");
    tree.write(kRoot + "active_config");

    EXPECT_TRUE(events.takeChanges());

    EXPECT_TRUE(notices(events, kRoot + "active_config"));
}

TEST_F(DirectoryEventsOverflowTest, IsNoChangeWhileTheDirectoryIsMissing)
{
    tree.remove("home/config/gcloud");
    DirectoryEvents events = watch();

    overflow("home/config");

    EXPECT_FALSE(events.takeChanges());
}

} // namespace torvi
