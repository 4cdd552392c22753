// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/SystemClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

class SystemClipboardTest : public testing::Test
{
protected:
    SystemClipboard clipboard;

    static const QMimeData *data()
    {
        return QGuiApplication::clipboard()->mimeData();
    }
};

TEST_F(SystemClipboardTest, WritesPlainTextAsItIs)
{
    clipboard.setText(u"https://example.com/?a=%7e&b=%2F\n"_s);

    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"https://example.com/?a=%7e&b=%2F\n"_s);
    EXPECT_FALSE(data()->hasFormat(u"x-kde-passwordManagerHint"_s));
}

TEST_F(SystemClipboardTest, MarksASecretForClipboardManagersBesideThePlainText)
{
    clipboard.setSecret(u"eyJhbGciOi"_s);

    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"eyJhbGciOi"_s);
    EXPECT_EQ(data()->data(u"x-kde-passwordManagerHint"_s), "secret");
}

TEST_F(SystemClipboardTest, ReplacesEverythingThatWasThere)
{
    auto *picture = new QMimeData;
    picture->setData(u"image/png"_s, "picture");
    QGuiApplication::clipboard()->setMimeData(picture);

    clipboard.setText(u"text"_s);

    EXPECT_FALSE(data()->hasFormat(u"image/png"_s));
}

TEST_F(SystemClipboardTest, TheMarkGoesWithTheSecret)
{
    clipboard.setSecret(u"secret"_s);

    clipboard.setText(u"text"_s);

    EXPECT_FALSE(data()->hasFormat(u"x-kde-passwordManagerHint"_s));
}

} // namespace torvi
