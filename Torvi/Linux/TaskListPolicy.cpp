// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/TaskListPolicy.h"

#include "Torvi/Linux/WindowState.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

namespace torvi {

TaskListPolicy::TaskListPolicy()
{
    qGuiApp->installEventFilter(this);
}

void TaskListPolicy::setActivationPolicy(ActivationPolicy policy)
{
    m_policy = policy;
    for (const QWindow *window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible()) {
            WindowState::changeInTaskList(*window, isListed(*window));
        }
    }
}

bool TaskListPolicy::eventFilter(QObject *object, QEvent *event)
{
    // Comes before the window manager sees the window, so that no entry flashes up.
    if (event->type() == QEvent::Show) {
        if (const auto *window = qobject_cast<QWindow *>(object); window && window->isTopLevel()) {
            WindowState::startInTaskList(*window, isListed(*window));
        }
    }
    return QObject::eventFilter(object, event);
}

bool TaskListPolicy::isListed(const QWindow &window) const
{
    return m_policy == ActivationPolicy::regular && window.type() == Qt::Window;
}

} // namespace torvi
