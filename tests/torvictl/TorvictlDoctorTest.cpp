// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/torvictl/TorvictlProgram.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace torvi {

class TorvictlDoctorTest : public TorvictlProgram
{
protected:
    static bool hasLine(const Outcome &outcome, const QString &pattern)
    {
        const QRegularExpression line(u'^' + pattern + u'$', QRegularExpression::MultilineOption);
        return QString::fromUtf8(outcome.output).contains(line);
    }
};

TEST_F(TorvictlDoctorTest, TellsWhatIsThere)
{
    scriptGcloud(R"(echo '{"Google Cloud SDK": "528.0.0", "core": "x"}')");
    writeConfig(u"active_config"_s, "default");

    const Outcome outcome = run({ u"doctor"_s });

    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.error, "");
    EXPECT_TRUE(hasLine(outcome, u"torvictl +[0-9.]+"_s)) << outcome.output.toStdString();
    EXPECT_TRUE(hasLine(outcome, u"Qt +6\\.[0-9.]+"_s)) << outcome.output.toStdString();
    EXPECT_TRUE(hasLine(outcome, u"gcloud +~/google-cloud-sdk/bin/gcloud"_s))
        << outcome.output.toStdString();
    EXPECT_TRUE(hasLine(outcome, u"Found by +the well-known locations, in [0-9]+ ms"_s))
        << outcome.output.toStdString();
    EXPECT_TRUE(hasLine(outcome, u"gcloud version +528\\.0\\.0"_s)) << outcome.output.toStdString();
    EXPECT_TRUE(hasLine(outcome, u"Configuration +~/\\.config/gcloud"_s))
        << outcome.output.toStdString();
    EXPECT_TRUE(hasLine(outcome,
                        u"Preferences +~/\\.config/torvi/preferences\\.ini \\(does not exist\\)"_s))
        << outcome.output.toStdString();
    EXPECT_EQ(gcloudRuns(), "version --format=json\n");
}

TEST_F(TorvictlDoctorTest, TellsNothingPrivate)
{
    scriptGcloud(R"(echo '{}')");
    writeConfig(u"configurations/config_default"_s,
                "[core]\nproject = secret-project\naccount = secret@example.com\n");
    writeAccounts({ u"secret@example.com"_s });
    environment.insert(u"CLOUDSDK_CORE_PROJECT"_s, u"secret-override"_s);

    const Outcome outcome = run({ u"doctor"_s });

    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_FALSE(outcome.output.contains("secret")) << outcome.output.toStdString();
    EXPECT_TRUE(hasLine(outcome, u"gcloud version +it does not tell"_s));
    EXPECT_TRUE(hasLine(outcome, u"Environment +CLOUDSDK_CORE_PROJECT"_s));
}

TEST_F(TorvictlDoctorTest, ItsAdviceMakesTheSettingTheStage)
{
    run({ u"settings"_s, u"set"_s, u"gcloudPathOverride"_s,
          path(u"google-cloud-sdk/bin/gcloud"_s) });

    const Outcome outcome = run({ u"doctor"_s });

    EXPECT_TRUE(hasLine(outcome, u"Found by +the setting gcloudPathOverride, in [0-9]+ ms"_s))
        << outcome.output.toStdString();
    EXPECT_FALSE(outcome.output.contains("settings set")) << outcome.output.toStdString();
}

} // namespace torvi
