// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/FavoritesStore.h"
#include "GCloudStateManager/Preferences.h"
#include "GCloudStateManager/RecentStore.h"
#include "GCloudStateManager/ServiceAccountStore.h"
#include "GCloudStateManager/SettingsStore.h"
#include "tests/properties/Random.h"
#include "tests/support/ForkedProcess.h"
#include "tests/support/TestDirectory.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <ctime>
#include <new>
#include <sched.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

/// What all the stores hold.
struct Contents
{
    QSet<QString> pinned;
    QStringList recents;
    ServiceAccountStoring::AccountsByProject accounts;
    bool launchAtLogin = false;
    MenubarDisplayFormat format = MenubarDisplayFormat::iconAndProject;
    std::optional<QString> gcloudPath;
    qint64 refreshInterval = 5;

    bool operator==(const Contents &) const = default;
};

/// The stores on one file, as they are in the application.
class Stores
{
public:
    explicit Stores(const QString &path)
        : m_preferences(std::make_shared<Preferences>(path))
    {
    }

    [[nodiscard]] Contents contents() const
    {
        return { m_favorites.allPinned(),
                 m_recents.recentProjectIds(),
                 m_accounts.allServiceAccounts(),
                 m_settings.launchAtLogin(),
                 m_settings.menubarDisplayFormat(),
                 m_settings.gcloudPathOverride(),
                 m_settings.refreshIntervalMinutes() };
    }

    /// Saves once and is never without effect; what it does follows from the number alone.
    void change(int number)
    {
        const QString project = u"project-%1"_s.arg(number % 301);
        switch (number % 5) {
        case 0:
            m_favorites.isPinned(project) ? m_favorites.unpin(project) : m_favorites.pin(project);
            break;
        case 1:
            m_recents.recordUsage(project);
            break;
        case 2:
            changeAccount({ u"robot@"_s + project, u"home"_s, u"Röbot, \"R\""_s });
            break;
        case 3:
            m_settings.setRefreshIntervalMinutes(1 + number % 60);
            break;
        default:
            m_settings.setGcloudPathOverride(number % 2 == 0 ? std::optional(project)
                                                             : std::nullopt);
        }
    }

private:
    void changeAccount(const ServiceAccount &account)
    {
        if (m_accounts.serviceAccounts(account.projectId).contains(account)) {
            m_accounts.removeServiceAccount(account.email, account.projectId);
        } else {
            m_accounts.addServiceAccount(account);
        }
    }

    std::shared_ptr<Preferences> m_preferences;
    FavoritesStore m_favorites{ m_preferences };
    RecentStore m_recents{ m_preferences };
    ServiceAccountStore m_accounts{ m_preferences };
    SettingsStore m_settings{ m_preferences };
};

/// A number that a process and its children share.
class SharedNumber
{
public:
    SharedNumber()
        : m_memory(::mmap(nullptr, sizeof(std::atomic_int), PROT_READ | PROT_WRITE,
                          MAP_SHARED | MAP_ANONYMOUS, -1, 0))
        , m_number(new (m_memory) std::atomic_int(0))
    {
    }
    ~SharedNumber()
    {
        ::munmap(m_memory, sizeof(std::atomic_int));
    }
    Q_DISABLE_COPY_MOVE(SharedNumber)

    std::atomic_int &operator*() const
    {
        return *m_number;
    }

private:
    void *m_memory;
    std::atomic_int *m_number;
};

/// Lets the kernel kill this process that much later, wherever it is then.
bool killMyselfAfter(long microseconds)
{
    sigevent kill{};
    kill.sigev_notify = SIGEV_SIGNAL;
    kill.sigev_signo = SIGKILL;
    timer_t timer{};
    const itimerspec when{ .it_interval = {}, .it_value = { 0, microseconds * 1000 } };
    return ::timer_create(CLOCK_MONOTONIC, &kill, &timer) == 0
        && ::timer_settime(timer, 0, &when, nullptr) == 0;
}

} // namespace

class StoreFaultsTest : public testing::Test
{
protected:
    TestDirectory folder;
    const QString disk = folder.path(u"disk"_s);
    QString path = disk + u"/torvi/preferences.ini"_s;

    StoreFaultsTest()
    {
        folder.makeFolder(u"disk"_s);
    }

    /// As another process would: QSettings keeps what it knows of a path.
    [[nodiscard]] Contents loaded()
    {
        if (!QFile::exists(path)) {
            return {};
        }
        const QString copy = folder.path(u"copy-%1.ini"_s.arg(++m_copies));
        EXPECT_TRUE(QFile::copy(path, copy));
        return Stores(copy).contents();
    }

    /// Runs `body` in a process of its own, for which `disk` is one of 4 MB; skips where that is
    /// not allowed.
    void withSmallDisk(const std::function<void()> &body) const
    {
        constexpr int kNotAllowed = 77;
        const int code = exitCodeOf([&] {
            if (::unshare(CLONE_NEWNS) != 0
                || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0
                || ::mount("none", qPrintable(disk), "tmpfs", 0, "size=4m") != 0) {
                return kNotAllowed;
            }
            body();
            return HasFailure() ? 1 : 0;
        });
        if (code == kNotAllowed) {
            GTEST_SKIP() << "only the administrator may mount a disk";
        }
        EXPECT_EQ(code, 0);
    }

    void setReadOnly(bool readOnly) const
    {
        ASSERT_EQ(::mount("none", qPrintable(disk), "tmpfs",
                          readOnly ? MS_REMOUNT | MS_RDONLY : MS_REMOUNT, "size=4m"),
                  0);
    }

    /// Leaves that many bytes of the small disk free.
    void fillDisk(qint64 spare) const
    {
        QFile filler(disk + u"/filler"_s);
        ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(4096, 'x')) > 0) { }
        ASSERT_TRUE(filler.resize(filler.size() - spare));
    }

    void freeDisk() const
    {
        ASSERT_TRUE(QFile::remove(disk + u"/filler"_s));
    }

private:
    int m_copies = 0;
};

TEST_F(StoreFaultsTest, AKilledSaveLeavesTheOldOrTheNewPreferences)
{
    constexpr int kLongestLife = 5'000; // microseconds
    // In memory where possible: a process that mostly waits for the disk is mostly killed there.
    const QTemporaryDir memory((QDir(u"/dev/shm"_s).exists() ? u"/dev/shm"_s : QDir::tempPath())
                               + u"/torvi-kills-XXXXXX"_s);
    path = memory.filePath(u"torvi/preferences.ini"_s);
    Random random;
    const SharedNumber begun;
    Stores model(memory.filePath(u"model.ini"_s));
    std::vector<Contents> after{ model.contents() }; // so many changes
    int changes = 0;
    int savesLost = 0;
    for (int kills = 0; kills < repetitions(200); ++kills) {
        const int life = 1 + random.below(kLongestLife);
        *begun = changes;

        const int code = exitCodeOf([&] {
            Stores stores(path);
            if (!killMyselfAfter(life)) {
                return 1;
            }
            for (int number = changes;; ++number) {
                *begun = number + 1;
                stores.change(number);
            }
        });

        ASSERT_EQ(code, 128 + SIGKILL);
        while (static_cast<int>(after.size()) <= *begun) {
            model.change(static_cast<int>(after.size()) - 1);
            after.push_back(model.contents());
        }
        const Contents now = loaded();
        const int newest = *begun;
        const bool isNew = now == after[static_cast<std::size_t>(newest)];
        const bool isOld = now == after[static_cast<std::size_t>(std::max(newest - 1, 0))];
        ASSERT_TRUE(isNew || isOld) << "kill " << kills << " in change " << newest;
        changes = isNew ? newest : newest - 1;
        savesLost += isNew ? 0 : 1;
    }
    std::cout << changes << " changes; " << savesLost << " kills before the new file was there\n";
}

TEST_F(StoreFaultsTest, AFullDiskLosesNothingStoredAndNothingChangedSince)
{
    withSmallDisk([this] {
        Stores stores(path);
        int number = 0;
        while (number < 400) {
            stores.change(number++);
        }
        for (const qint64 spare : { 0, 4096, 8192, 100'000 }) {
            const Contents stored = stores.contents();
            EXPECT_EQ(loaded(), stored);
            fillDisk(spare);
            for (int i = 0; i < 20; ++i) {
                stores.change(number++);
                EXPECT_EQ(loaded(), stored);
            }

            freeDisk();
            stores.change(number++);

            EXPECT_EQ(loaded(), stores.contents());
        }
    });
}

TEST_F(StoreFaultsTest, AReadOnlyHomeLosesNothingStoredAndNothingChangedSince)
{
    withSmallDisk([this] {
        Stores stores(path);
        for (int number = 0; number < 100; ++number) {
            stores.change(number);
        }
        const Contents stored = stores.contents();
        setReadOnly(true);
        for (int number = 100; number < 120; ++number) {
            stores.change(number);
            EXPECT_EQ(loaded(), stored);
        }

        setReadOnly(false);
        stores.change(120);

        EXPECT_EQ(loaded(), stores.contents());
    });
}

TEST_F(StoreFaultsTest, AReadOnlyHomeWithoutPreferencesIsAFreshOne)
{
    withSmallDisk([this] {
        setReadOnly(true);
        Stores stores(path);
        EXPECT_EQ(stores.contents(), Contents());

        stores.change(0);

        EXPECT_EQ(stores.contents().pinned.size(), 1);
    });
}

class HostileValueTest : public StoreFaultsTest, public testing::WithParamInterface<const char *>
{
};

TEST_P(HostileValueTest, UnderEveryKeyLoadsAsTheDefaultsAndIsReplaced)
{
    QByteArray file("[General]\n");
    for (const char *key : { "favorites", "recents", "serviceaccounts", "launchAtLogin",
                             "displayFormat", "gcloudPath", "refreshInterval" }) {
        file += QByteArray("com.veldra.") + key + '=' + GetParam() + '\n';
    }
    folder.write(u"disk/torvi/preferences.ini"_s, file);

    Stores stores(path);
    EXPECT_EQ(stores.contents(), Contents());
    for (int number = 0; number < 5; ++number) {
        stores.change(number);
    }

    EXPECT_EQ(loaded(), stores.contents());
}

INSTANTIATE_TEST_SUITE_P(
    , HostileValueTest,
    testing::Values("@Invalid()", "@Point(1 2)", "@Rect(0 0 1 1)", "@Variant()",
                    R"(@Variant(\0\0\0\x2\0\0\0\x5))", R"(@Variant(\0\0\0\b\0\0\0\0))",
                    R"(@Variant(\0\0\0\x1f\x1\x1\x1\x1))", R"(@Variant(\xff\xff\xff\xff))",
                    R"(@DateTime(\xff\xff\xff\xff))", R"(@ByteArray(no JSON))",
                    R"(@ByteArray({"p":[1]}))", R"(@ByteArray(\0\xff\0))", "a, @ByteArray(b)",
                    "a, @Invalid()", "@Variant(\\0\\0\\0\\x2), @Variant(x)"));

} // namespace torvi
