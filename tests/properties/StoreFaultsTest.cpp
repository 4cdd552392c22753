// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/properties/AllStores.h"
#include "tests/support/ForkedProcess.h"
#include "tests/support/TestDirectory.h"

#include <gtest/gtest.h>

#include <sched.h>
#include <sys/mount.h>

namespace torvi {

class StoreFaultsTest : public testing::Test
{
protected:
    TestDirectory folder;
    const QString disk = folder.path(u"disk"_s);
    const QString path = disk + u"/torvi/preferences.ini"_s;

    StoreFaultsTest()
    {
        folder.makeFolder(u"disk"_s);
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
};

TEST_F(StoreFaultsTest, AFullDiskLosesNothingStoredAndNothingChangedSince)
{
    withSmallDisk([this] {
        AllStores stores(path);
        int number = 0;
        while (number < 400) {
            stores.change(number++);
        }
        for (const qint64 spare : { 0, 4096, 8192, 100'000 }) {
            const Contents stored = stores.contents();
            EXPECT_EQ(contentsOf(path), stored);
            fillDisk(spare);
            for (int i = 0; i < 20; ++i) {
                stores.change(number++);
                EXPECT_EQ(contentsOf(path), stored);
            }

            freeDisk();
            stores.change(number++);

            EXPECT_EQ(contentsOf(path), stores.contents());
        }
    });
}

TEST_F(StoreFaultsTest, AReadOnlyHomeLosesNothingStoredAndNothingChangedSince)
{
    withSmallDisk([this] {
        AllStores stores(path);
        for (int number = 0; number < 100; ++number) {
            stores.change(number);
        }
        const Contents stored = stores.contents();
        setReadOnly(true);
        for (int number = 100; number < 120; ++number) {
            stores.change(number);
            EXPECT_EQ(contentsOf(path), stored);
        }

        setReadOnly(false);
        stores.change(120);

        EXPECT_EQ(contentsOf(path), stores.contents());
    });
}

TEST_F(StoreFaultsTest, AReadOnlyHomeWithoutPreferencesIsAFreshOne)
{
    withSmallDisk([this] {
        setReadOnly(true);
        AllStores stores(path);
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

    AllStores stores(path);
    EXPECT_EQ(stores.contents(), Contents());
    for (int number = 0; number < 5; ++number) {
        stores.change(number);
    }

    EXPECT_EQ(contentsOf(path), stores.contents());
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
