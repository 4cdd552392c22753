// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/UnfocusedCopy.h"

#include "Torvi/Linux/SystemClipboard.h"
#include "tests/support/WaitUntil.h"

#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

/// wl-copy is a script that keeps what it was given.
class UnfocusedCopyTest : public testing::Test
{
protected:
    QTemporaryDir folder;
    QByteArray path = qgetenv("PATH");
    QString arguments = folder.filePath(u"arguments"_s);
    QString text = folder.filePath(u"text"_s);

    void TearDown() override
    {
        qputenv("PATH", path);
        qunsetenv("WAYLAND_DISPLAY");
    }

    void installProgram()
    {
        QFile script(folder.filePath(u"wl-copy"_s));
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write(u"#!/bin/sh\ncat > '%1.part'\necho \"$*\" > '%2'\nmv '%1.part' '%1'\n"_s
                         .arg(text, arguments)
                         .toUtf8());
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        script.close();
        qputenv("PATH", folder.path().toUtf8() + ':' + path);
    }

    QByteArray copied()
    {
        EXPECT_TRUE(waitUntil([] { return qGuiApp->findChildren<QProcess *>().isEmpty(); }));
        QFile file(text);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
};

TEST_F(UnfocusedCopyTest, IsNeededOnWaylandAlone)
{
    EXPECT_FALSE(UnfocusedCopy::isNeeded());

    qputenv("WAYLAND_DISPLAY", "wayland-0");

    EXPECT_TRUE(UnfocusedCopy::isNeeded());
}

TEST_F(UnfocusedCopyTest, PassesTheTextByteForByteAndNotAsAnArgument)
{
    installProgram();

    UnfocusedCopy::copy(u"https://example.com/?a=%7e&b=ä\n"_s);

    EXPECT_EQ(copied(), "https://example.com/?a=%7e&b=ä\n");
    QFile file(arguments);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "--type text/plain;charset=utf-8\n");
}

TEST_F(UnfocusedCopyTest, TheClipboardUsesItForATextWithoutFocus)
{
    installProgram();
    qputenv("WAYLAND_DISPLAY", "wayland-0");

    SystemClipboard().setText(u"text"_s);

    EXPECT_EQ(copied(), "text");
}

TEST_F(UnfocusedCopyTest, AMissingProgramIsNoError)
{
    qputenv("PATH", folder.path().toUtf8());

    UnfocusedCopy::copy(u"text"_s);
}

} // namespace torvi
