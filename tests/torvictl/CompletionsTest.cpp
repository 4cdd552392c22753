// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/torvictl/TorvictlProgram.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace torvi {

class CompletionsTest : public TorvictlProgram, public testing::WithParamInterface<const char *>
{
};

TEST_P(CompletionsTest, KnowEveryCommandThatTheHelpNames)
{
    QFile file(QStringLiteral(TORVI_COMPLETIONS) + u'/' + QString::fromUtf8(GetParam()));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString completions = QString::fromUtf8(file.readAll());
    const QString help = QString::fromUtf8(run({ u"--help"_s }).output);
    const QString subcommands = help.mid(help.indexOf(u"Subcommands:"));
    static const QRegularExpression command(u"^  ([a-z-]+) "_s,
                                            QRegularExpression::MultilineOption);
    int commands = 0;

    for (auto match = command.globalMatch(subcommands); match.hasNext(); ++commands) {
        const QString name = match.next().captured(1);
        EXPECT_TRUE(completions.contains(QRegularExpression(u"\\b%1\\b"_s.arg(name))))
            << name.toStdString();
    }

    EXPECT_EQ(commands, 23);
}

TEST_P(CompletionsTest, AreReadWithoutComplaintByTheirShell)
{
    const QString name = QString::fromUtf8(GetParam());
    const QString shell = name == u"_torvictl" ? u"zsh"_s
        : name == u"torvictl.fish"             ? u"fish"_s
                                               : u"bash"_s;
    QProcess process;
    process.start(shell, { u"-n"_s, QStringLiteral(TORVI_COMPLETIONS) + u'/' + name });
    if (!process.waitForStarted()) {
        GTEST_SKIP() << shell.toStdString() << " is not installed";
    }

    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Shells, CompletionsTest,
                         testing::Values("torvictl.bash", "_torvictl", "torvictl.fish"));

} // namespace torvi
