// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Quick/QuickPopover.h"

#include "Torvi/Quick/PopoverPlacement.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <utility>

namespace torvi {

namespace {

QScreen *screenAt(const QPoint &position)
{
    QScreen *screen = QGuiApplication::screenAt(position);
    return screen == nullptr ? QGuiApplication::primaryScreen() : screen;
}

} // namespace

QuickPopover::QuickPopover(MakeWindow makeWindow, BringToFront bringToFront)
    : m_makeWindow(std::move(makeWindow))
    , m_bringToFront(std::move(bringToFront))
{
}

bool QuickPopover::isShown() const
{
    return m_window && m_window->isVisible();
}

void QuickPopover::show(const std::optional<QPoint> &anchor)
{
    if (!m_window) {
        m_window = m_makeWindow();
    }
    QScreen *screen = screenAt(anchor.value_or(QCursor::pos()));
    m_window->place(
        PopoverPlacement::frame(anchor, { screen->geometry(), screen->availableGeometry() }, kSize),
        screen);
    m_window->show();
    m_bringToFront(*m_window);
}

void QuickPopover::performClose()
{
    if (m_window) {
        m_window->hide();
    }
}

} // namespace torvi
