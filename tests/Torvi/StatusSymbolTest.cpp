// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/StatusSymbol.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

int opaquePixels(const IconPixmap &pixmap)
{
    int count = 0;
    for (qsizetype i = 0; i < pixmap.bytes.size(); i += 4) {
        count += static_cast<quint8>(pixmap.bytes.at(i)) > 0x80 ? 1 : 0;
    }
    return count;
}

} // namespace

TEST(StatusSymbolTest, OffersTheSizesThatPanelsUse)
{
    for (const QString &symbol : { u"cloud.fill"_s, u"cloud.bolt.fill"_s }) {
        QList<int> sizes;
        for (const IconPixmap &pixmap : StatusSymbol::pixmaps(symbol)) {
            EXPECT_EQ(pixmap.width, pixmap.height);
            EXPECT_EQ(pixmap.bytes.size(), 4 * pixmap.width * pixmap.height);
            EXPECT_GT(opaquePixels(pixmap), pixmap.width * pixmap.height / 4);
            sizes.append(pixmap.width);
        }
        EXPECT_EQ(sizes, (QList<int>{ 18, 22, 24, 36, 48 }));
    }
}

TEST(StatusSymbolTest, TheSymbolsDiffer)
{
    EXPECT_NE(StatusSymbol::pixmaps(u"cloud.fill"_s), StatusSymbol::pixmaps(u"cloud.bolt.fill"_s));
}

TEST(StatusSymbolTest, IsOneGreyThatPanelsOfBothKindsShow)
{
    const QByteArray bytes = StatusSymbol::pixmaps(u"cloud.fill"_s).last().bytes;

    const qsizetype middle = bytes.size() / 2 + 4 * 24;
    EXPECT_EQ(bytes.mid(middle, 4).toHex(), "ff858b94");
}

TEST(StatusSymbolTest, AnUnknownSymbolHasNoPixmap)
{
    EXPECT_TRUE(StatusSymbol::pixmaps(u"no.such.symbol"_s).isEmpty());
}

TEST(StatusSymbolTest, ANameIsGivenOnlyWhenItsFileIsThere)
{
    const QTemporaryDir theme;
    const QString folder = theme.path() + u"/hicolor/symbolic/apps"_s;
    QDir().mkpath(folder);
    QFile file(folder + u"/com.veldra.Torvi-cloud-fill-symbolic.svg"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));

    EXPECT_EQ(StatusSymbol::iconName(u"cloud.fill"_s, theme.path()),
              u"com.veldra.Torvi-cloud-fill-symbolic"_s);
    EXPECT_EQ(StatusSymbol::iconName(u"cloud.bolt.fill"_s, theme.path()), QString());
}

TEST(StatusSymbolTest, TheThemeStandsBesideThePrograms)
{
    // Test programs and torvi are built into the same folder.
    const QString theme = StatusSymbol::iconThemePath(QCoreApplication::applicationDirPath());

    EXPECT_NE(StatusSymbol::iconName(u"cloud.fill"_s, theme), QString());
    EXPECT_NE(StatusSymbol::iconName(u"cloud.bolt.fill"_s, theme), QString());
}

} // namespace torvi
