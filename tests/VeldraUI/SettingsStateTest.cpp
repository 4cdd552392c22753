// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/SettingsState.h"

#include "tests/VeldraUI/AuthStateFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace torvi {

class SettingsStateTest : public AuthStateFixture
{
protected:
    SettingsState &view = *state->settings();
};

TEST_F(SettingsStateTest, ReadsTheStoreOfTheStateManager)
{
    settings->isLaunchedAtLogin = true;
    settings->format = MenubarDisplayFormat::iconAndProjectAndAccount;
    settings->interval = 42;
    settings->path = u"/opt/gcloud"_s;

    EXPECT_TRUE(view.launchAtLogin());
    EXPECT_EQ(view.menubarDisplayFormat(), 2);
    EXPECT_EQ(view.refreshIntervalMinutes(), 42);
    EXPECT_EQ(view.gcloudPathOverride(), u"/opt/gcloud"_s);
}

TEST_F(SettingsStateTest, StoresEachSettingAtOnceAndTellsOfIt)
{
    const QSignalSpy changes(&view, &SettingsState::changed);

    view.setLaunchAtLogin(true);
    EXPECT_TRUE(settings->isLaunchedAtLogin);
    view.setMenubarDisplayFormat(0);
    EXPECT_EQ(settings->format, MenubarDisplayFormat::iconOnly);
    view.setRefreshIntervalMinutes(60);
    EXPECT_EQ(settings->interval, 60);
    view.setGcloudPathOverride(u" x "_s);
    EXPECT_EQ(settings->path, u" x "_s);

    EXPECT_EQ(changes.count(), 4);
}

TEST_F(SettingsStateTest, NamesTheFormatsInTheirOrder)
{
    EXPECT_EQ(view.menubarDisplayFormatTexts(),
              (QStringList{ u"Icon only"_s, u"Icon + Project"_s, u"Icon + Project + Account"_s }));
}

TEST_F(SettingsStateTest, IgnoresAFormatThatThereIsNot)
{
    view.setMenubarDisplayFormat(3);
    view.setMenubarDisplayFormat(-1);

    EXPECT_EQ(settings->format, MenubarDisplayFormat::iconAndProject);
}

TEST_F(SettingsStateTest, AnEmptyPathRemovesTheOverride)
{
    settings->path = u"/opt"_s;

    view.setGcloudPathOverride(u""_s);

    EXPECT_EQ(settings->path, std::nullopt);
    EXPECT_EQ(view.gcloudPathOverride(), u""_s);
}

TEST_F(SettingsStateTest, StoresAPathOfSpacesAsItIs)
{
    view.setGcloudPathOverride(u"  "_s);

    EXPECT_EQ(settings->path, u"  "_s);
}

} // namespace torvi
