// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QImage>
#include <QList>

namespace torvi {

/// One size of an icon as the StatusNotifierItem protocol sends it, `(iiay)`: ARGB32 in network
/// byte order, not premultiplied.
struct IconPixmap
{
    int width = 0;
    int height = 0;
    QByteArray bytes;

    [[nodiscard]] static IconPixmap fromImage(const QImage &image);

    bool operator==(const IconPixmap &) const = default;
};

using IconPixmaps = QList<IconPixmap>;

QDBusArgument &operator<<(QDBusArgument &argument, const IconPixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &argument, IconPixmap &pixmap);

} // namespace torvi

Q_DECLARE_METATYPE(torvi::IconPixmap)
Q_DECLARE_METATYPE(torvi::IconPixmaps)
