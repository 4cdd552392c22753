// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/torvictl/TorvictlProgram.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace torvi {

class TorvictlPreferencesTest : public TorvictlProgram
{
};

TEST_F(TorvictlPreferencesTest, FreshSettingsAreTheDefaults)
{
    EXPECT_EQ(run({ u"settings"_s, u"--json"_s }).output,
              R"({"launchAtLogin":false,"menubarDisplayFormat":"icon_and_project",)"
              R"("gcloudPathOverride":null,"refreshIntervalMinutes":5})"
              "\n");
    EXPECT_EQ(run({ u"settings"_s }).output,
              "launchAtLogin           false\n"
              "menubarDisplayFormat    icon_and_project\n"
              "gcloudPathOverride\n"
              "refreshIntervalMinutes  5\n");
}

TEST_F(TorvictlPreferencesTest, SettingsAreKept)
{
    EXPECT_EQ(run({ u"settings"_s, u"set"_s, u"launchAtLogin"_s, u"true"_s }).output, "");
    run({ u"settings"_s, u"set"_s, u"menubarDisplayFormat"_s, u"icon_only"_s });
    run({ u"settings"_s, u"set"_s, u"gcloudPathOverride"_s, u"/a b/gcloud"_s });
    run({ u"settings"_s, u"set"_s, u"refreshIntervalMinutes"_s, u"30"_s });

    EXPECT_EQ(run({ u"settings"_s, u"--json"_s }).output,
              R"({"launchAtLogin":true,"menubarDisplayFormat":"icon_only",)"
              R"("gcloudPathOverride":"/a b/gcloud","refreshIntervalMinutes":30})"
              "\n");
}

TEST_F(TorvictlPreferencesTest, EmptyTextClearsThePath)
{
    run({ u"settings"_s, u"set"_s, u"gcloudPathOverride"_s, u"/x"_s });
    EXPECT_EQ(run({ u"settings"_s, u"set"_s, u"gcloudPathOverride"_s, u""_s }).exitCode, 0);

    EXPECT_TRUE(run({ u"settings"_s, u"--json"_s }).output.contains("\"gcloudPathOverride\":null"));
}

TEST_F(TorvictlPreferencesTest, IntervalIsStoredAsGivenAndClampedAtTheNextStart)
{
    EXPECT_EQ(run({ u"settings"_s, u"set"_s, u"refreshIntervalMinutes"_s, u"-90"_s }).exitCode, 0);

    EXPECT_TRUE(
        run({ u"settings"_s, u"--json"_s }).output.contains("\"refreshIntervalMinutes\":1}"));
    EXPECT_TRUE(read(u".config/torvi/preferences.ini"_s).contains("refreshInterval=-90"));
}

TEST_F(TorvictlPreferencesTest, PathSettingIsWhereGcloudIsFound)
{
    const QString gcloud = path(u"elsewhere"_s);
    ASSERT_TRUE(QFile::rename(path(u"google-cloud-sdk/bin/gcloud"_s), gcloud));

    run({ u"settings"_s, u"set"_s, u"gcloudPathOverride"_s, gcloud });

    EXPECT_EQ(run({ u"locate"_s }).output, gcloud.toUtf8() + '\n');
}

TEST_F(TorvictlPreferencesTest, SavedAccountsAreKeptByProject)
{
    EXPECT_EQ(
        run({ u"save-account"_s, u"s@p"_s, u"--project"_s, u"p"_s, u"--label"_s, u"größer"_s })
            .exitCode,
        0);
    run({ u"save-account"_s, u"t@p"_s, u"--project"_s, u"p"_s });
    run({ u"save-account"_s, u"s@p"_s, u"--project"_s, u"q"_s });

    EXPECT_EQ(run({ u"saved-accounts"_s, u"p"_s, u"--json"_s }).output,
              R"([{"email":"s@p","projectId":"p","displayName":"größer"},)"
              R"({"email":"t@p","projectId":"p","displayName":null}])"
              "\n");
    EXPECT_EQ(run({ u"saved-accounts"_s, u"p"_s }).output, "s@p  größer\nt@p\n");
}

TEST_F(TorvictlPreferencesTest, ForgottenAccountIsGoneFromItsProjectOnly)
{
    run({ u"save-account"_s, u"s@p"_s, u"--project"_s, u"p"_s });
    run({ u"save-account"_s, u"s@p"_s, u"--project"_s, u"q"_s });

    EXPECT_EQ(run({ u"forget-account"_s, u"s@p"_s, u"--project"_s, u"p"_s }).exitCode, 0);

    EXPECT_EQ(run({ u"saved-accounts"_s, u"p"_s, u"--json"_s }).output, "[]\n");
    EXPECT_NE(run({ u"saved-accounts"_s, u"q"_s, u"--json"_s }).output, "[]\n");
}

TEST_F(TorvictlPreferencesTest, UnpinnedProjectIsPinnedNoMore)
{
    scriptGcloud(R"(echo '[{"projectId": "a", "name": "A"}]')");
    run({ u"pin"_s, u"a"_s });
    run({ u"unpin"_s, u"a"_s });

    EXPECT_TRUE(run({ u"projects"_s, u"--json"_s }).output.contains("\"isPinned\":false"));
}

TEST_F(TorvictlPreferencesTest, PreferencesAreTheUsersAlone)
{
    run({ u"pin"_s, u"a"_s });

    EXPECT_EQ(QFileInfo(path(u".config/torvi/preferences.ini"_s)).permissions()
                  & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
              QFile::Permissions());
}

} // namespace torvi
