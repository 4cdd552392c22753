// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Quick/PopoverWindow.h"

#include <QGuiApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace torvi {

PopoverWindow::PopoverWindow(QQmlEngine *engine)
    : QQuickView(engine, nullptr)
{
    setTitle(u"Torvi"_s);
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setResizeMode(QQuickView::SizeRootObjectToView);
    qGuiApp->installEventFilter(this);
}

void PopoverWindow::place(const QRect &frame, QScreen *screen)
{
    setScreen(screen);
    setMinimumSize(frame.size());
    setMaximumSize(frame.size());
    setGeometry(frame);
}

void PopoverWindow::keyPressEvent(QKeyEvent *event)
{
    event->ignore(); // it arrives accepted, also when no item takes it
    QQuickView::keyPressEvent(event);
    if (!event->isAccepted() && event->key() == Qt::Key_Escape) {
        event->accept();
        hide();
    }
}

bool PopoverWindow::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress && isVisible() && object != this) {
        const auto *window = qobject_cast<QWindow *>(object);
        if (window != nullptr && window->transientParent() != this) {
            hide();
        }
    }
    return QQuickView::eventFilter(object, event);
}

} // namespace torvi
