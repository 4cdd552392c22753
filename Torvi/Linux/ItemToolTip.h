// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/Linux/IconPixmap.h"

#include <QString>

namespace torvi {

/// A tool tip as the StatusNotifierItem protocol sends it, `(sa(iiay)ss)`.
struct ItemToolTip
{
    QString iconName;
    IconPixmaps iconPixmaps;
    QString title;
    QString text; ///< markup: "&", "<" and ">" stand for themselves only when escaped

    bool operator==(const ItemToolTip &) const = default;
};

QDBusArgument &operator<<(QDBusArgument &argument, const ItemToolTip &toolTip);
const QDBusArgument &operator>>(const QDBusArgument &argument, ItemToolTip &toolTip);

} // namespace torvi

Q_DECLARE_METATYPE(torvi::ItemToolTip)
