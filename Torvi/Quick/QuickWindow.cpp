// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Quick/QuickWindow.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <utility>

namespace torvi {

QuickWindow::QuickWindow(const MakeWindow &makeWindow,
                         std::function<void(const Window &)> onWillClose, BringToFront bringToFront)
    : m_onWillClose(std::move(onWillClose))
    , m_bringToFront(std::move(bringToFront))
    , m_window(makeWindow([this] { willClose(); }))
{
    QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    m_window->center(screen == nullptr ? QGuiApplication::primaryScreen() : screen);
}

QuickWindow::~QuickWindow()
{
    if (m_isClosing) {
        m_window.release()->deleteLater(); // it has yet to return from its event
    }
}

bool QuickWindow::isVisible() const
{
    return m_window->isVisible();
}

void QuickWindow::makeKeyAndOrderFront()
{
    if (m_window->windowStates().testFlag(Qt::WindowMinimized)) {
        m_window->showNormal();
    } else {
        m_window->show();
    }
    m_bringToFront(*m_window);
}

void QuickWindow::willClose()
{
    m_isClosing = true;
    const auto onWillClose = m_onWillClose;
    onWillClose(*this); // this object may have ended now
}

} // namespace torvi
