// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/torvictl/TorvictlProgram.h"

using namespace Qt::StringLiterals;

namespace torvi {

class TorvictlUsageTest : public TorvictlProgram
{
protected:
    void expectUsageError(const QStringList &arguments)
    {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.exitCode, 2) << arguments.join(u' ').toStdString();
        EXPECT_EQ(outcome.output, "");
        EXPECT_NE(outcome.error, "");
        EXPECT_EQ(gcloudRuns(), "");
    }
};

TEST_F(TorvictlUsageTest, NoCommandIsAUsageErrorThatSaysWhatToDo)
{
    const Outcome outcome = run({});

    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_TRUE(outcome.error.contains("--help")) << outcome.error.toStdString();
}

TEST_F(TorvictlUsageTest, UnknownCommandsAndOptionsAreUsageErrors)
{
    expectUsageError({ u"nonsense"_s });
    expectUsageError({ u"status"_s, u"--nonsense"_s });
    expectUsageError({ u"status"_s, u"extra"_s });
    expectUsageError({ u"switch-project"_s, u"--weird"_s });
    expectUsageError({ u"status"_s, u"status"_s });
}

TEST_F(TorvictlUsageTest, MissingAndSurplusArgumentsAreUsageErrors)
{
    expectUsageError({ u"switch-project"_s });
    expectUsageError({ u"switch-project"_s, u"a"_s, u"b"_s });
    expectUsageError({ u"service-accounts"_s });
    expectUsageError({ u"save-account"_s, u"s@p"_s });
    expectUsageError({ u"forget-account"_s, u"s@p"_s });
    expectUsageError({ u"settings"_s, u"set"_s, u"launchAtLogin"_s });
}

TEST_F(TorvictlUsageTest, ModeIsOneOfThree)
{
    expectUsageError({ u"impersonate"_s, u"s@p"_s, u"--mode"_s, u"ADC Only"_s });
    expectUsageError({ u"impersonate"_s, u"s@p"_s, u"--mode"_s, u"0"_s });
    expectUsageError({ u"clear-impersonation"_s, u"--mode"_s, u"BOTH"_s });
}

TEST_F(TorvictlUsageTest, FormatIsOneOfFourAndNotBesideJson)
{
    expectUsageError({ u"watch"_s, u"--format"_s, u"lemonbar"_s });
    expectUsageError({ u"watch"_s, u"--format"_s });
    expectUsageError({ u"status"_s, u"--format"_s, u"plain"_s, u"--json"_s });
    expectUsageError({ u"projects"_s, u"--format"_s, u"plain"_s });
}

TEST_F(TorvictlUsageTest, UnknownSettingsAndWrongTypesAreUsageErrors)
{
    expectUsageError({ u"settings"_s, u"set"_s, u"nonsense"_s, u"1"_s });
    expectUsageError({ u"settings"_s, u"set"_s, u"launchAtLogin"_s, u"yes"_s });
    expectUsageError({ u"settings"_s, u"set"_s, u"refreshIntervalMinutes"_s, u"soon"_s });
}

TEST_F(TorvictlUsageTest, HelpAtEveryLevelGoesToStandardOutput)
{
    const QList<QStringList> levels{ { u"--help"_s },
                                     { u"status"_s, u"--help"_s },
                                     { u"switch-project"_s, u"--help"_s },
                                     { u"settings"_s, u"--help"_s },
                                     { u"settings"_s, u"set"_s, u"--help"_s } };
    for (const QStringList &arguments : levels) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.exitCode, 0);
        EXPECT_TRUE(outcome.output.contains("Usage:")) << outcome.output.toStdString();
        EXPECT_EQ(outcome.error, "");
    }
}

TEST_F(TorvictlUsageTest, VersionNamesTheProgram)
{
    const Outcome outcome = run({ u"--version"_s });

    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_TRUE(outcome.output.startsWith("torvictl ")) << outcome.output.toStdString();
}

TEST_F(TorvictlUsageTest, WhatFollowsTwoDashesIsNeverAnOption)
{
    scriptGcloud("exit 1");

    run({ u"switch-project"_s, u"--"_s, u"--help"_s });
    run({ u"impersonate"_s, u"--mode"_s, u"cliOnly"_s, u"--"_s, u"--mode"_s });
    run({ u"switch-project"_s, u"--"_s, u"status"_s });
    run({ u"switch-project"_s, u"--"_s, u"--"_s });

    EXPECT_EQ(gcloudRuns(),
              "config set project --help\n"
              "config set auth/impersonate_service_account --mode\n"
              "config set project status\n"
              "config set project --\n");
}

TEST_F(TorvictlUsageTest, ArgumentsReachGcloudAsTheyAre)
{
    scriptGcloud("exit 1");

    for (const QString &project : { u""_s, u"a b"_s, u"{}"_s, u"[a,b]"_s, u"größer"_s, u"status"_s,
                                    u"-1"_s, u"%%"_s, u"'\"`$x"_s }) {
        run({ u"switch-project"_s, project });
    }

    EXPECT_EQ(gcloudRuns(),
              "config set project \n"
              "config set project a b\n"
              "config set project {}\n"
              "config set project [a,b]\n"
              "config set project größer\n"
              "config set project status\n"
              "config set project -1\n"
              "config set project %%\n"
              "config set project '\"`$x\n");
}

} // namespace torvi
