// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QQuickPaintedItem>

namespace torvi {

/// Shows the running application's icon, as large as the item is.
class ApplicationIcon : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    using QQuickPaintedItem::QQuickPaintedItem;

    void paint(QPainter *painter) override;
};

} // namespace torvi
