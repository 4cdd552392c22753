// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/Diagnosis.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

using Stage = GCloudPathResolver::Stage;

Diagnosis diagnosisWith(Stage stage)
{
    Diagnosis diagnosis;
    diagnosis.gcloud = { u"/home/ada/sdk/bin/gcloud"_s, stage };
    diagnosis.searchTime = std::chrono::milliseconds(1830);
    diagnosis.homeDirectory = u"/home/ada"_s;
    return diagnosis;
}

QString valueOf(const Diagnosis &diagnosis, QStringView label)
{
    for (const Row &row : diagnosis.rows()) {
        if (row.label == label) {
            return row.value;
        }
    }
    return u"no such row"_s;
}

} // namespace

TEST(DiagnosisTest, TellsByWhichStageGcloudWasFoundAndHowLongThatTook)
{
    EXPECT_EQ(valueOf(diagnosisWith(Stage::setting), u"Found by"),
              u"the setting gcloudPathOverride, in 1830 ms"_s);
    EXPECT_EQ(valueOf(diagnosisWith(Stage::wellKnownLocation), u"Found by"),
              u"the well-known locations, in 1830 ms"_s);
    EXPECT_EQ(valueOf(diagnosisWith(Stage::startUpFile), u"Found by"),
              u"a start-up file of a shell, in 1830 ms"_s);
    EXPECT_EQ(valueOf(diagnosisWith(Stage::loginShell), u"Found by"),
              u"asking the login shell, in 1830 ms"_s);
}

TEST(DiagnosisTest, BeginsWithTheProgramThatAsks)
{
    Diagnosis diagnosis;
    diagnosis.program = { u"torvi"_s, u"1.2.3"_s };

    EXPECT_EQ(diagnosis.rows().first(), diagnosis.program);
}

TEST(DiagnosisTest, AdvisesTheSettingUnlessItIsUsed)
{
    EXPECT_EQ(diagnosisWith(Stage::loginShell).advice(),
              u"To have gcloud found at once: torvictl settings set gcloudPathOverride "
              "\"$(torvictl locate)\""_s);
    EXPECT_EQ(diagnosisWith(Stage::setting).advice(), std::nullopt);
    EXPECT_EQ(Diagnosis().advice(), std::nullopt);
}

TEST(DiagnosisTest, ShowsTheHomeDirectoryAsATilde)
{
    EXPECT_EQ(valueOf(diagnosisWith(Stage::setting), u"gcloud"), u"~/sdk/bin/gcloud"_s);

    Diagnosis other = diagnosisWith(Stage::setting);
    other.homeDirectory = u"/home/a"_s;

    EXPECT_EQ(valueOf(other, u"gcloud"), u"/home/ada/sdk/bin/gcloud"_s);
}

TEST(DiagnosisTest, TellsOfTheEnvironmentTheNamesAlone)
{
    Diagnosis diagnosis;
    EXPECT_EQ(valueOf(diagnosis, u"Environment"), u"nothing for gcloud"_s);

    diagnosis.environment.insert(u"CLOUDSDK_CORE_PROJECT"_s, u"secret"_s);
    diagnosis.environment.insert(u"GOOGLE_APPLICATION_CREDENTIALS"_s, u"/secret"_s);
    diagnosis.environment.insert(u"PATH"_s, u"/bin"_s);

    EXPECT_EQ(valueOf(diagnosis, u"Environment"),
              u"CLOUDSDK_CORE_PROJECT, GOOGLE_APPLICATION_CREDENTIALS"_s);
}

TEST(DiagnosisTest, ASettingThatLeadsNowhereIsShown)
{
    Diagnosis diagnosis = diagnosisWith(Stage::loginShell);
    EXPECT_EQ(valueOf(diagnosis, u"gcloudPathOverride"), u"no such row"_s);

    diagnosis.pathSetting = u"/gone"_s;

    EXPECT_EQ(valueOf(diagnosis, u"gcloudPathOverride"), u"/gone (cannot be executed)"_s);
}

TEST(DiagnosisTest, TellsWhatDoesNotExist)
{
    Diagnosis diagnosis;
    diagnosis.configDirectory = u"/nonexistent/gcloud"_s;
    diagnosis.preferencesFile = u"/"_s;

    EXPECT_EQ(valueOf(diagnosis, u"Configuration"), u"/nonexistent/gcloud (does not exist)"_s);
    EXPECT_EQ(valueOf(diagnosis, u"Preferences"), u"/"_s);
}

} // namespace torvi
