// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/Style/SymbolImageProvider.h"

#include <QImage>

#include <gtest/gtest.h>

namespace torvi {

using namespace Qt::StringLiterals;

namespace {

QImage draw(const QString &id, int side)
{
    return SymbolImageProvider().requestImage(id, nullptr, { side, side });
}

/// How much of the square is covered, from 0 to 1.
double coverage(const QImage &image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += qAlpha(image.pixel(x, y)) / 255.0;
        }
    }
    return sum / (image.width() * image.height());
}

/// The number of pixels that are neither empty nor full: few of them make a crisp picture.
int softPixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = qAlpha(image.pixel(x, y));
            count += alpha > 0 && alpha < 255 ? 1 : 0;
        }
    }
    return count;
}

class SymbolNameTest : public testing::TestWithParam<const char *>
{
};

} // namespace

TEST_P(SymbolNameTest, DrawsSomethingButNotEverything)
{
    const QImage image = draw(QString::fromLatin1(GetParam()) + u"/ff000000"_s, 32);

    ASSERT_EQ(image.size(), QSize(32, 32));
    EXPECT_GT(coverage(image), 0.05);
    EXPECT_LT(coverage(image), 0.9);
}

TEST_P(SymbolNameTest, IsOfTheOneColourThatIsAskedFor)
{
    const QImage image = draw(QString::fromLatin1(GetParam()) + u"/ff3574e3"_s, 32);

    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 255) {
                ASSERT_EQ(image.pixel(x, y), 0xff3574e3);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AllSymbols, SymbolNameTest,
                         testing::Values("arrow.clockwise", "arrow.up.forward.square", "bolt",
                                         "bolt.badge.a", "bolt.fill", "checkmark", "chevron.down",
                                         "chevron.up", "chevron.up.chevron.down", "cloud.bolt.fill",
                                         "cloud.fill", "doc.on.clipboard",
                                         "exclamationmark.triangle.fill", "folder", "folder.fill",
                                         "gear", "gearshape.fill", "info.circle", "key", "key.fill",
                                         "magnifyingglass", "person.2", "person.badge.key",
                                         "person.fill", "power", "progress", "slider.horizontal.3",
                                         "star", "star.fill", "terminal.fill", "trash", "xmark",
                                         "xmark.circle.fill"),
                         [](const testing::TestParamInfo<const char *> &row) {
                             QString name = QString::fromLatin1(row.param);
                             return name.remove(u'.').toStdString();
                         });

TEST(SymbolImageProviderTest, CutsNothingOffTheSymbolsThatWeDraw)
{
    for (const QString &name : { u"bolt.badge.a"_s, u"person.badge.key"_s, u"progress"_s }) {
        const QImage image = draw(name + u"/ff000000"_s, 160);
        for (int i = 0; i < 160; ++i) {
            for (const QPoint &edge :
                 { QPoint(i, 0), QPoint(i, 159), QPoint(0, i), QPoint(159, i) }) {
                ASSERT_LT(qAlpha(image.pixel(edge)), 32) << name.toStdString() << " at " << i;
            }
        }
    }
}

TEST(SymbolImageProviderTest, DrawsTheSizeThatIsAskedForAndSaysSo)
{
    QSize size;

    const QImage image = SymbolImageProvider().requestImage(u"gear/ff000000"_s, &size, { 28, 28 });

    EXPECT_EQ(image.size(), QSize(28, 28));
    EXPECT_EQ(size, QSize(28, 28));
}

TEST(SymbolImageProviderTest, DrawsItsOwnSizeWhenNoneIsAskedFor)
{
    const QImage image = SymbolImageProvider().requestImage(u"gear/ff000000"_s, nullptr, {});

    EXPECT_EQ(image.size(), QSize(16, 16));
}

TEST(SymbolImageProviderTest, IsCrispAtTwiceTheSizeInsteadOfEnlarged)
{
    const QImage once = draw(u"folder.fill/ff000000"_s, 16);
    const QImage twice = draw(u"folder.fill/ff000000"_s, 32);
    const QImage enlarged = once.scaled(32, 32, Qt::KeepAspectRatio, Qt::SmoothTransformation);

    EXPECT_LT(softPixels(twice), softPixels(enlarged) / 2);
}

TEST(SymbolImageProviderTest, KeepsItsProportionsInAnOblongSize)
{
    const QImage image
        = SymbolImageProvider().requestImage(u"folder.fill/ff000000"_s, nullptr, { 64, 32 });

    EXPECT_EQ(image.size(), QSize(64, 32));
    EXPECT_EQ(qAlpha(image.pixel(4, 16)), 0);
    EXPECT_EQ(qAlpha(image.pixel(32, 16)), 255);
}

TEST(SymbolImageProviderTest, MakesTheTintTranslucentWhenItsColourIs)
{
    const QImage image = draw(u"folder.fill/80ffffff"_s, 32);

    EXPECT_EQ(qAlpha(image.pixel(16, 16)), 0x80);
}

TEST(SymbolImageProviderTest, GivesNoImageForAnUnknownName)
{
    EXPECT_TRUE(draw(u"no.such.symbol/ff000000"_s, 16).isNull());
    EXPECT_TRUE(draw(u"../gear/ff000000"_s, 16).isNull());
    EXPECT_TRUE(draw(u""_s, 16).isNull());
}

TEST(SymbolImageProviderTest, GivesNoImageForAMalformedColour)
{
    EXPECT_TRUE(draw(u"gear/nocolour"_s, 16).isNull());
    EXPECT_TRUE(draw(u"gear"_s, 16).isNull());
}

} // namespace torvi
