// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/IconPixmap.h"

#include <QtEndian>

namespace torvi {

IconPixmap IconPixmap::fromImage(const QImage &image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    IconPixmap pixmap{ argb.width(), argb.height(), QByteArray(argb.sizeInBytes(), '\0') };
    qToBigEndian<quint32>(argb.constBits(), argb.sizeInBytes() / qsizetype{ sizeof(quint32) },
                          pixmap.bytes.data());
    return pixmap;
}

QDBusArgument &operator<<(QDBusArgument &argument, const IconPixmap &pixmap)
{
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, IconPixmap &pixmap)
{
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.bytes;
    argument.endStructure();
    return argument;
}

} // namespace torvi
