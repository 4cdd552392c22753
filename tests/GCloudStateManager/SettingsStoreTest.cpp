// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/SettingsStore.h"

#include "tests/support/PreferencesFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

class SettingsStoreTest : public testing::Test
{
protected:
    PreferencesFolder folder;
    std::unique_ptr<SettingsStore> store = std::make_unique<SettingsStore>(folder.open());
    int changes = 0;

    SettingsStoreTest()
    {
        QObject::connect(store.get(), &SettingsStoring::changed, store.get(),
                         [this] { ++changes; });
    }

    [[nodiscard]] std::unique_ptr<SettingsStore> holding(const QByteArray &content) const
    {
        return std::make_unique<SettingsStore>(folder.holding(content));
    }

    [[nodiscard]] std::unique_ptr<SettingsStore> reloaded() const
    {
        return std::make_unique<SettingsStore>(folder.reopened());
    }
};

TEST_F(SettingsStoreTest, HasDefaultsAtFirst)
{
    EXPECT_FALSE(store->launchAtLogin());
    EXPECT_EQ(store->menubarDisplayFormat(), MenubarDisplayFormat::iconAndProject);
    EXPECT_EQ(store->gcloudPathOverride(), std::nullopt);
    EXPECT_EQ(store->refreshIntervalMinutes(), 5);
}

TEST_F(SettingsStoreTest, StoresNothingBeforeAChange)
{
    EXPECT_FALSE(QFile::exists(folder.path()));
}

TEST_F(SettingsStoreTest, RemembersLaunchAtLogin)
{
    store->setLaunchAtLogin(true);

    EXPECT_TRUE(store->launchAtLogin());
    EXPECT_EQ(folder.stored("com.veldra.launchAtLogin"), "true");
    EXPECT_TRUE(reloaded()->launchAtLogin());
    EXPECT_EQ(changes, 1);
    store->setLaunchAtLogin(false);
    EXPECT_FALSE(reloaded()->launchAtLogin());
    EXPECT_EQ(changes, 2);
}

TEST_F(SettingsStoreTest, RemembersEachDisplayFormatByItsRawValue)
{
    for (const MenubarDisplayFormat format : allCases<MenubarDisplayFormat>()) {
        store->setMenubarDisplayFormat(format);

        EXPECT_EQ(store->menubarDisplayFormat(), format);
        EXPECT_EQ(folder.stored("com.veldra.displayFormat"), rawValue(format).toLatin1());
        EXPECT_EQ(reloaded()->menubarDisplayFormat(), format);
    }
    EXPECT_EQ(changes, 3);
}

TEST_F(SettingsStoreTest, RemembersThePathOverride)
{
    const QString path = u"/opt/Süd, \"x\"; y/gcloud"_s;

    store->setGcloudPathOverride(path);

    EXPECT_EQ(store->gcloudPathOverride(), path);
    EXPECT_EQ(reloaded()->gcloudPathOverride(), path);
    EXPECT_EQ(changes, 1);
}

TEST_F(SettingsStoreTest, AnEmptyPathOverrideIsNotAbsent)
{
    store->setGcloudPathOverride(QString());

    EXPECT_EQ(reloaded()->gcloudPathOverride(), QString());
    EXPECT_EQ(changes, 1);
}

TEST_F(SettingsStoreTest, AnAbsentPathOverrideDeletesTheKey)
{
    store->setGcloudPathOverride(u"/opt/gcloud"_s);
    EXPECT_EQ(folder.stored("com.veldra.gcloudPath"), "/opt/gcloud");

    store->setGcloudPathOverride(std::nullopt);

    EXPECT_TRUE(folder.stored("com.veldra.gcloudPath").isNull());
    EXPECT_EQ(reloaded()->gcloudPathOverride(), std::nullopt);
    EXPECT_EQ(changes, 2);
}

TEST_F(SettingsStoreTest, RemembersTheRefreshInterval)
{
    store->setRefreshIntervalMinutes(15);

    EXPECT_EQ(store->refreshIntervalMinutes(), 15);
    EXPECT_EQ(folder.stored("com.veldra.refreshInterval"), "15");
    EXPECT_EQ(reloaded()->refreshIntervalMinutes(), 15);
    EXPECT_EQ(changes, 1);
}

TEST_F(SettingsStoreTest, StoresARefreshIntervalAsGivenAndBoundsItWhenLoaded)
{
    store->setRefreshIntervalMinutes(90);

    EXPECT_EQ(store->refreshIntervalMinutes(), 90);
    EXPECT_EQ(folder.stored("com.veldra.refreshInterval"), "90");
    EXPECT_EQ(reloaded()->refreshIntervalMinutes(), 60);
    store->setRefreshIntervalMinutes(-3);
    EXPECT_EQ(store->refreshIntervalMinutes(), -3);
    EXPECT_EQ(reloaded()->refreshIntervalMinutes(), 1);
}

TEST_F(SettingsStoreTest, StoresAValueThatEqualsTheCurrentOneButTellsNobody)
{
    store->setLaunchAtLogin(false);
    store->setMenubarDisplayFormat(MenubarDisplayFormat::iconAndProject);
    store->setRefreshIntervalMinutes(5);
    store->setGcloudPathOverride(u"/x"_s);
    folder.discard();
    changes = 0;

    store->setLaunchAtLogin(false);
    store->setMenubarDisplayFormat(MenubarDisplayFormat::iconAndProject);
    store->setGcloudPathOverride(u"/x"_s);
    store->setRefreshIntervalMinutes(5);

    EXPECT_EQ(folder.stored("com.veldra.launchAtLogin"), "false");
    EXPECT_EQ(folder.stored("com.veldra.displayFormat"), "icon_and_project");
    EXPECT_EQ(folder.stored("com.veldra.gcloudPath"), "/x");
    EXPECT_EQ(folder.stored("com.veldra.refreshInterval"), "5");
    EXPECT_EQ(changes, 0);
}

TEST_F(SettingsStoreTest, ReadsItsKeysOnlyWhenConstructed)
{
    folder.open()->setInteger(u"com.veldra.refreshInterval"_s, 30);

    EXPECT_EQ(store->refreshIntervalMinutes(), 5);
}

TEST_F(SettingsStoreTest, LoadsADisplayFormatOfOtherCaseAsTheDefault)
{
    EXPECT_EQ(holding("com.veldra.displayFormat=ICON_ONLY")->menubarDisplayFormat(),
              MenubarDisplayFormat::iconAndProject);
}

TEST_F(SettingsStoreTest, LoadsAnUnknownDisplayFormatAsTheDefault)
{
    EXPECT_EQ(holding("com.veldra.displayFormat=icon_only, x")->menubarDisplayFormat(),
              MenubarDisplayFormat::iconAndProject);
}

TEST_F(SettingsStoreTest, LoadsAPathOverrideOfAnotherTypeAsAbsent)
{
    EXPECT_EQ(holding("com.veldra.gcloudPath=@ByteArray(/x)")->gcloudPathOverride(), std::nullopt);
}

TEST_F(SettingsStoreTest, LoadsLaunchAtLoginOnlyFromTrueOrOne)
{
    EXPECT_TRUE(holding("com.veldra.launchAtLogin=1")->launchAtLogin());
}

TEST_F(SettingsStoreTest, LoadsLaunchAtLoginFromAnythingElseAsFalse)
{
    EXPECT_FALSE(holding("com.veldra.launchAtLogin=YES")->launchAtLogin());
}

struct StoredInterval
{
    const char *name;
    const char *text;
    qint64 minutes;
};

void PrintTo(const StoredInterval &interval, std::ostream *out)
{
    *out << interval.text;
}

class SettingsStoreIntervalTest : public SettingsStoreTest,
                                  public testing::WithParamInterface<StoredInterval>
{
};

TEST_P(SettingsStoreIntervalTest, IsLoadedWithinBounds)
{
    const auto loaded = holding(QByteArray("com.veldra.refreshInterval=") + GetParam().text);

    EXPECT_EQ(loaded->refreshIntervalMinutes(), GetParam().minutes);
}

INSTANTIATE_TEST_SUITE_P(
    , SettingsStoreIntervalTest,
    testing::Values(StoredInterval{ "Zero", "0", 5 }, StoredInterval{ "MinusOne", "-1", 1 },
                    StoredInterval{ "One", "1", 1 }, StoredInterval{ "Sixty", "60", 60 },
                    StoredInterval{ "SixtyOne", "61", 60 },
                    StoredInterval{ "Smallest", "-9223372036854775808", 1 },
                    StoredInterval{ "Largest", "9223372036854775807", 60 },
                    StoredInterval{ "TooLarge", "9223372036854775808", 5 },
                    StoredInterval{ "NoInteger", "7.5", 5 }, StoredInterval{ "Word", "ten", 5 },
                    StoredInterval{ "Empty", "", 5 }, StoredInterval{ "List", "7, 8", 5 }),
    [](const testing::TestParamInfo<StoredInterval> &row) { return std::string(row.param.name); });

} // namespace torvi
