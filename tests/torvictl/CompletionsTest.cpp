// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/torvictl/TorvictlProgram.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace torvi {

class CompletionsTest : public TorvictlProgram, public testing::WithParamInterface<const char *>
{
protected:
    /// The commands that the help names.
    QStringList commands()
    {
        const QString help = QString::fromUtf8(run({ u"--help"_s }).output);
        static const QRegularExpression command(u"^  ([a-z-]+) "_s,
                                                QRegularExpression::MultilineOption);
        QStringList names;
        for (auto match = command.globalMatch(help.mid(help.indexOf(u"Subcommands:")));
             match.hasNext();) {
            names.append(match.next().captured(1));
        }
        EXPECT_EQ(names.size(), 23);
        return names;
    }

    static QString content(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return QString::fromUtf8(file.readAll());
    }
};

TEST_P(CompletionsTest, KnowEveryCommandThatTheHelpNames)
{
    const QString completions
        = content(QStringLiteral(TORVI_COMPLETIONS) + u'/' + QString::fromUtf8(GetParam()));

    for (const QString &name : commands()) {
        EXPECT_TRUE(completions.contains(QRegularExpression(u"\\b%1\\b"_s.arg(name))))
            << name.toStdString();
    }
}

class ManualTest : public CompletionsTest
{
};

TEST_P(ManualTest, KnowsEveryCommandThatTheHelpNames)
{
    const QString manual = content(QString::fromUtf8(GetParam()));

    for (QString name : commands()) {
        name.replace(u'-', u"\\-"_s);
        EXPECT_TRUE(manual.contains(
            QRegularExpression(u"^\\.B.*[ \"]%1\\b"_s.arg(QRegularExpression::escape(name)),
                               QRegularExpression::MultilineOption)))
            << name.toStdString();
    }
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

INSTANTIATE_TEST_SUITE_P(Torvictl, ManualTest, testing::Values(TORVI_MANUAL));
INSTANTIATE_TEST_SUITE_P(Shells, CompletionsTest,
                         testing::Values("torvictl.bash", "_torvictl", "torvictl.fish"));

} // namespace torvi
