// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/Style/Typography.h"

#include <QFontMetricsF>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

QFont font(int pixelSize, QFont::Weight weight = QFont::Normal)
{
    QFont font;
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

} // namespace

void Typography::loadFonts()
{
    QFont medium = callout();
    medium.setWeight(QFont::Medium);
    QFont demiBold = callout();
    demiBold.setWeight(QFont::DemiBold);
    const QString usual = u"abcdefghijklmnopqrstuvwxyz ABCDEFGHIJKLMNOPQRSTUVWXYZ 0123456789-.@"_s;
    for (const QFont &style : { body(), callout(), medium, demiBold, caption() }) {
        static_cast<void>(QFontMetricsF(style).horizontalAdvance(usual)); // loads what it measures
    }
}

QFont Typography::title()
{
    return font(22);
}

QFont Typography::headline()
{
    return font(13, QFont::DemiBold);
}

QFont Typography::body()
{
    return font(13);
}

QFont Typography::callout()
{
    return font(12);
}

QFont Typography::caption()
{
    return font(11);
}

} // namespace torvi
