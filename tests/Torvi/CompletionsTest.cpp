// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/CommandLine.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <array>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

/// The options that the help names, without their dashes.
QStringList options()
{
    const std::array arguments{ "torvi", "--help" };
    testing::internal::CaptureStdout();
    (void)CommandLine::parse(static_cast<int>(arguments.size()), arguments.data());
    const QString help = QString::fromStdString(testing::internal::GetCapturedStdout());
    static const QRegularExpression option(u"^  .*--([a-z-]+) "_s,
                                           QRegularExpression::MultilineOption);
    QStringList names;
    for (auto match = option.globalMatch(help); match.hasNext();) {
        names.append(match.next().captured(1));
    }
    EXPECT_EQ(names.size(), 7);
    return names;
}

} // namespace

class TorviCompletionsTest : public testing::TestWithParam<const char *>
{
protected:
    [[nodiscard]] static QString path()
    {
        return QStringLiteral(TORVI_SOURCES) + u'/' + QString::fromUtf8(GetParam());
    }
};

TEST_P(TorviCompletionsTest, KnowEveryOptionThatTheHelpNames)
{
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    // A manual writes its dashes with a backslash, fish an option without dashes.
    const QString text = QString::fromUtf8(file.readAll()).remove(u'\\');

    for (const QString &name : options()) {
        EXPECT_TRUE(text.contains(QRegularExpression(u"(--|-l )%1\\b"_s.arg(name))))
            << name.toStdString();
    }
}

TEST_P(TorviCompletionsTest, AreReadWithoutComplaintByTheirReader)
{
    const QString name = path().section(u'/', -1);
    QStringList command{ u"man"_s, u"--warnings"_s, u"-l"_s };
    if (!name.endsWith(u".in"_s)) {
        command = { name.endsWith(u".fish"_s)       ? u"fish"_s
                        : name.endsWith(u".bash"_s) ? u"bash"_s
                                                    : u"zsh"_s,
                    u"-n"_s };
    }
    QProcess process;
    process.start(command.takeFirst(), command << path());
    if (!process.waitForStarted()) {
        GTEST_SKIP() << process.program().toStdString() << " is not installed";
    }

    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_EQ(process.readAllStandardError(), "");
}

INSTANTIATE_TEST_SUITE_P(Files, TorviCompletionsTest,
                         testing::Values("Torvi/completions/torvi.bash", "Torvi/completions/_torvi",
                                         "Torvi/completions/torvi.fish",
                                         "packaging/man/torvi.1.in"));

} // namespace torvi
