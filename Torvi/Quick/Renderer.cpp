// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Quick/Renderer.h"

#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace torvi {

void Renderer::choose()
{
    if (!qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND")) {
        return;
    }
    const QString wanted = qEnvironmentVariable("TORVI_RENDERER");
    if (wanted == u"opengl") {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    } else if (wanted == u"vulkan") {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Vulkan);
    } else {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
}

} // namespace torvi
