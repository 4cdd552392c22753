// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "torvictl/SettingChange.h"

#include "tests/support/FakeStores.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace torvi {

class SettingChangeTest : public testing::Test
{
protected:
    FakeSettingsStore store;

    void change(const QString &name, const QString &value)
    {
        settingChange(name, value)(store);
    }
};

TEST_F(SettingChangeTest, LaunchAtLoginIsTrueOrFalseAndNothingElse)
{
    change(u"launchAtLogin"_s, u"true"_s);
    EXPECT_TRUE(store.isLaunchedAtLogin);
    change(u"launchAtLogin"_s, u"false"_s);
    EXPECT_FALSE(store.isLaunchedAtLogin);

    for (const QString &value : { u"1"_s, u"yes"_s, u"True"_s, u""_s, u" true"_s }) {
        EXPECT_THROW(change(u"launchAtLogin"_s, value), std::invalid_argument);
    }
}

TEST_F(SettingChangeTest, DisplayFormatIsARawValue)
{
    change(u"menubarDisplayFormat"_s, u"icon_only"_s);
    EXPECT_EQ(store.format, MenubarDisplayFormat::iconOnly);

    EXPECT_THROW(change(u"menubarDisplayFormat"_s, u"iconOnly"_s), std::invalid_argument);
}

TEST_F(SettingChangeTest, EmptyPathClearsTheOverride)
{
    change(u"gcloudPathOverride"_s, u"~/gcloud"_s);
    EXPECT_EQ(store.path, u"~/gcloud"_s);
    change(u"gcloudPathOverride"_s, u""_s);
    EXPECT_EQ(store.path, std::nullopt);
}

TEST_F(SettingChangeTest, IntervalIsStoredAsGiven)
{
    change(u"refreshIntervalMinutes"_s, u"-90"_s);
    EXPECT_EQ(store.interval, -90);
    change(u"refreshIntervalMinutes"_s, u"9223372036854775807"_s);
    EXPECT_EQ(store.interval, 9223372036854775807);
}

TEST_F(SettingChangeTest, IntervalIsAWholeNumber)
{
    for (const QString &value :
         { u"5.0"_s, u"five"_s, u""_s, u" 5"_s, u"0x5"_s, u"9223372036854775808"_s }) {
        EXPECT_THROW(change(u"refreshIntervalMinutes"_s, value), std::invalid_argument);
    }
}

TEST_F(SettingChangeTest, UnknownNameIsRejectedWithTheKnownOnes)
{
    try {
        change(u"LaunchAtLogin"_s, u"true"_s);
        FAIL() << "no error";
    } catch (const std::invalid_argument &error) {
        EXPECT_NE(std::string(error.what()).find("launchAtLogin"), std::string::npos);
    }
}

} // namespace torvi
