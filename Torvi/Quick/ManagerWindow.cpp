// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Quick/ManagerWindow.h"

#include <QCloseEvent>
#include <QScreen>

#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

ManagerWindow::ManagerWindow(QQmlEngine *engine, std::function<void()> onWillClose)
    : QQuickView(engine, nullptr)
    , m_onWillClose(std::move(onWillClose))
{
    setTitle(u"Torvi"_s);
    setResizeMode(QQuickView::SizeRootObjectToView);
    setMinimumSize(kSmallestSize);
    resize(kSize);
}

void ManagerWindow::center(QScreen *screen)
{
    QRect frame({}, size());
    frame.moveCenter(screen->availableGeometry().center());
    setScreen(screen);
    setPosition(frame.topLeft());
}

void ManagerWindow::closeEvent(QCloseEvent *event)
{
    QQuickView::closeEvent(event);
    if (event->isAccepted()) {
        m_onWillClose();
    }
}

} // namespace torvi
