// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/PreferencesFile.h"

#include "GCloudStateManager/Preferences.h"
#include "tests/support/ForkedProcess.h"
#include "tests/support/TemporaryTree.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace torvi {

namespace fs = std::filesystem;

/// With Preferences on top, as it is used.
class PreferencesFileTest : public testing::Test
{
protected:
    TemporaryTree tree;
    const mode_t m_umask = ::umask(0); // the widest permissions that can happen

    ~PreferencesFileTest() override
    {
        ::umask(m_umask);
    }

    [[nodiscard]] QString path(const std::string &name) const
    {
        return QString::fromStdString(tree.path(name));
    }

    void set(const std::string &name, const QString &value = u"value"_s) const
    {
        Preferences(path(name)).setString(u"key"_s, value);
    }

    [[nodiscard]] fs::perms permissions(const std::string &name) const
    {
        return fs::status(tree.path(name)).permissions();
    }
};

constexpr fs::perms kUserFile = fs::perms::owner_read | fs::perms::owner_write;

TEST_F(PreferencesFileTest, CreatesNothingToRead)
{
    EXPECT_EQ(Preferences(path("config/torvi/p.ini")).string(u"key"_s), std::nullopt);

    EXPECT_FALSE(fs::exists(tree.path("config")));
}

TEST_F(PreferencesFileTest, CreatesAFileThatOnlyTheUserMayRead)
{
    set("p.ini");

    EXPECT_EQ(permissions("p.ini"), kUserFile);
}

TEST_F(PreferencesFileTest, CreatesFoldersForTheUserAlone)
{
    set("config/torvi/p.ini");

    EXPECT_EQ(tree.read("config/torvi/p.ini"), "[General]\nkey=value\n");
    EXPECT_EQ(permissions("config"), fs::perms::owner_all);
    EXPECT_EQ(permissions("config/torvi"), fs::perms::owner_all);
}

TEST_F(PreferencesFileTest, LeavesTheFolderThatIsThereAsItIs)
{
    tree.makeDirectory("config");
    fs::permissions(tree.path("config"), fs::perms::owner_all | fs::perms::group_all);

    set("config/p.ini");

    EXPECT_EQ(permissions("config"), fs::perms::owner_all | fs::perms::group_all);
}

TEST_F(PreferencesFileTest, TakesPermissionsAwayFromOthersWhenItWrites)
{
    tree.write("p.ini", "[General]\nold=1\n");
    EXPECT_NE(permissions("p.ini"), kUserFile);

    set("p.ini");

    EXPECT_EQ(permissions("p.ini"), kUserFile);
    EXPECT_EQ(tree.read("p.ini"), "[General]\nkey=value\nold=1\n");
}

TEST_F(PreferencesFileTest, LeavesNothingElseBehind)
{
    set("torvi/p.ini");
    set("torvi/p.ini", u"other"_s);

    const fs::directory_iterator files(tree.path("torvi"));
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST_F(PreferencesFileTest, WritesThroughALink)
{
    tree.makeDirectory("dotfiles");
    tree.write("dotfiles/p.ini", "[General]\nold=1\n");
    tree.link("p.ini", "dotfiles/p.ini");

    set("p.ini");

    EXPECT_TRUE(fs::is_symlink(tree.path("p.ini")));
    EXPECT_EQ(tree.read("dotfiles/p.ini"), "[General]\nkey=value\nold=1\n");
    EXPECT_EQ(permissions("dotfiles/p.ini"), kUserFile);
}

TEST_F(PreferencesFileTest, LeavesADirectoryInItsPlaceAlone)
{
    tree.makeDirectory("p.ini");

    set("p.ini");

    EXPECT_EQ(Preferences(path("p.ini")).string(u"key"_s), std::nullopt);
    EXPECT_TRUE(fs::is_empty(tree.path("p.ini")));
}

TEST_F(PreferencesFileTest, DoesNotWaitForAPipeInItsPlace)
{
    ASSERT_EQ(::mkfifo(tree.path("p.ini").c_str(), S_IRWXU), 0);

    set("p.ini");

    EXPECT_EQ(Preferences(path("p.ini")).string(u"key"_s), std::nullopt);
    EXPECT_TRUE(fs::is_fifo(tree.path("p.ini")));
}

TEST_F(PreferencesFileTest, DoesNotWriteToADeviceInItsPlace)
{
    EXPECT_FALSE(PreferencesFile(u"/dev/null"_s).isPlain());
    EXPECT_FALSE(PreferencesFile(u"/dev/null"_s).beginWriting().isOpen());
}

TEST_F(PreferencesFileTest, SurvivesAFileWhereItsFolderWouldBe)
{
    tree.write("torvi");

    set("torvi/p.ini");

    EXPECT_EQ(tree.read("torvi"), "content");
}

/// As somebody whom permissions stop, unlike the administrator.
int exitCodeAsPlainUser(const std::function<int()> &body)
{
    constexpr uid_t kNobody = 65534;
    return exitCodeOf([&] { return ::geteuid() == 0 && ::setuid(kNobody) != 0 ? 77 : body(); });
}

TEST_F(PreferencesFileTest, ReadsButDoesNotWriteInAReadOnlyFolder)
{
    tree.makeDirectory("config");
    tree.write("config/p.ini", "[General]\nkey=old\n");
    fs::permissions(tree.path("config/p.ini"), fs::perms::all);
    fs::permissions(tree.path("config"), fs::perms(0555));
    fs::permissions(tree.path(), fs::perms(0555));

    const int code = exitCodeAsPlainUser([this] {
        Preferences preferences(path("config/p.ini"));
        preferences.setString(u"other"_s, u"new"_s);
        return preferences.string(u"key"_s) == u"old"_s ? 0 : 1;
    });

    EXPECT_EQ(code, 0);
    EXPECT_EQ(tree.read("config/p.ini"), "[General]\nkey=old\n");
    fs::permissions(tree.path(), fs::perms::owner_all);
    fs::permissions(tree.path("config"), fs::perms::owner_all);
}

TEST_F(PreferencesFileTest, TakesAFileThatMayNotBeReadForEmpty)
{
    tree.write("p.ini", "[General]\nkey=old\n");
    fs::permissions(tree.path(), fs::perms::all);
    fs::permissions(tree.path("p.ini"), fs::perms::none);

    const int code = exitCodeAsPlainUser([this] {
        set("p.ini", u"new"_s);
        return Preferences(path("p.ini")).string(u"key"_s) == std::nullopt ? 0 : 1;
    });

    EXPECT_EQ(code, 0);
    fs::permissions(tree.path("p.ini"), fs::perms::owner_all);
    EXPECT_EQ(tree.read("p.ini"), "[General]\nkey=old\n");
}

TEST_F(PreferencesFileTest, HoldsOtherProcessesOffWhileItWrites)
{
    const PreferencesFile file(path("p.ini"));
    const FileDescriptor other(::open(tree.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const auto tryToLock = [&other] { return ::flock(other.get(), LOCK_EX | LOCK_NB) == 0; };

    {
        const FileDescriptor lock = file.beginWriting();
        EXPECT_TRUE(lock.isOpen());
        EXPECT_FALSE(tryToLock());
    }

    EXPECT_TRUE(tryToLock());
}

TEST_F(PreferencesFileTest, DoesNotWaitForTheLockThatAKilledProcessLeft)
{
    tree.write("p.ini.lock", ""); // killed before it said whose it is
    fs::last_write_time(tree.path("p.ini.lock"),
                        fs::file_time_type::clock::now() + std::chrono::hours(1));

    set("p.ini");

    EXPECT_EQ(tree.read("p.ini"), "[General]\nkey=value\n");
    EXPECT_FALSE(fs::exists(tree.path("p.ini.lock")));
}

TEST_F(PreferencesFileTest, SeesAChangeByAnotherProcessThatLeavesSizeAndTimeAsTheyWere)
{
    Preferences preferences(path("p.ini"));
    preferences.setInteger(u"ours"_s, 1);
    preferences.setInteger(u"theirs"_s, 1);
    const auto time = fs::last_write_time(tree.path("p.ini"));
    const auto size = fs::file_size(tree.path("p.ini"));

    const int code = exitCodeOf([&] {
        Preferences(path("p.ini")).setInteger(u"theirs"_s, 2);
        return 0;
    });
    EXPECT_EQ(code, 0);
    fs::last_write_time(tree.path("p.ini"), time);
    EXPECT_EQ(fs::file_size(tree.path("p.ini")), size);
    preferences.setInteger(u"ours"_s, 2);

    EXPECT_EQ(tree.read("p.ini"), "[General]\nours=2\ntheirs=2\n");
}

} // namespace torvi
