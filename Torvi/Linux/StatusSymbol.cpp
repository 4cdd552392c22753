// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/StatusSymbol.h"

#include <QColor>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

constexpr QRgb kGrey = 0xff858b94;

QImage draw(QSvgRenderer &renderer, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, image.rect());
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), QColor::fromRgba(kGrey));
    painter.end();
    return image;
}

} // namespace

QString StatusSymbol::iconThemePath(const QString &programDirectory)
{
    return programDirectory + u"/../share/icons"_s;
}

QString StatusSymbol::iconName(const QString &symbol, const QString &iconThemePath)
{
    const QString name
        = u"com.veldra.Torvi-"_s + QString(symbol).replace(u'.', u'-') + u"-symbolic"_s;
    const QString file = iconThemePath + u"/hicolor/symbolic/apps/"_s + name + u".svg"_s;
    return QFile::exists(file) ? name : QString();
}

IconPixmaps StatusSymbol::pixmaps(const QString &symbol)
{
    const QString file = u":/torvi/symbols/"_s + symbol + u".svg"_s;
    if (!QFile::exists(file)) {
        return {};
    }
    QSvgRenderer renderer(file);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    IconPixmaps pixmaps;
    for (const int size : { 18, 22, 24, 36, 48 }) {
        pixmaps.append(IconPixmap::fromImage(draw(renderer, size)));
    }
    return pixmaps;
}

} // namespace torvi
