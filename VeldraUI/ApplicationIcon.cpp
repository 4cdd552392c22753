// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/ApplicationIcon.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QQuickWindow>

namespace torvi {

void ApplicationIcon::paint(QPainter *painter)
{
    // In device pixels, so that it is as sharp as the screen.
    const QSize size = (this->size() * window()->effectiveDevicePixelRatio()).toSize();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(boundingRect().toRect(), QGuiApplication::windowIcon().pixmap(size, 1));
}

} // namespace torvi
