// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/Style/SymbolImageProvider.h"

#include <QColor>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace torvi {

using namespace Qt::StringLiterals;

SymbolImageProvider::SymbolImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
{
}

QImage SymbolImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QString path = u":/symbols/"_s + id.section(u'/', 0, 0) + u".svg"_s;
    const QColor color(u'#' + id.section(u'/', 1));
    if (!color.isValid() || !QFile::exists(path)) {
        return {};
    }
    QSvgRenderer renderer(path);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    const QSize pixels = requestedSize.isEmpty() ? renderer.defaultSize() : requestedSize;

    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    painter.end();

    if (size != nullptr) {
        *size = pixels;
    }
    // A copy, for a picture keeps what it was painted with, which is several times its own size.
    return image.copy();
}

} // namespace torvi
