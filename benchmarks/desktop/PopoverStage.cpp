// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "benchmarks/desktop/PopoverStage.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

constexpr std::chrono::milliseconds kQuiet{ 300 };
constexpr QPoint kAnchor{ 600, 10 };

QQuickItem *below(const QQuickItem *item, const QString &name)
{
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (child->objectName() == name) {
            return child;
        }
        if (QQuickItem *found = below(child, name)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

PopoverStage::PopoverStage(int projectCount)
    : m_state(projectCount)
    , m_views({ m_clipboard, [](QWindow &window) { window.requestActivate(); },
                [](QWindow & /*window*/, const auto & /*setDark*/) {} })
{
    m_popover = m_views.makePopover(manager(), [] {});
}

AuthStateManager &PopoverStage::manager() const
{
    return m_state.manager();
}

double PopoverStage::timeToShow()
{
    QElapsedTimer timer;
    timer.start();
    m_popover->show(kAnchor);
    if (m_window == nullptr) {
        m_window = qobject_cast<QQuickView *>(QGuiApplication::topLevelWindows().constFirst());
    }
    waitForFrame();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void PopoverStage::close()
{
    m_popover->performClose();
    settle();
}

double PopoverStage::timeToFrame(const std::function<void()> &act)
{
    QElapsedTimer timer;
    timer.start();
    act();
    waitForFrame();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void PopoverStage::type(int key, const QString &text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(m_window, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(m_window, &release);
}

void PopoverStage::waitForFrame()
{
    QEventLoop loop;
    QObject::connect(m_window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
    loop.exec();
}

void PopoverStage::settle()
{
    QEventLoop loop;
    QTimer quiet;
    quiet.callOnTimeout(&loop, &QEventLoop::quit);
    quiet.start(kQuiet);
    QObject::connect(m_window, &QQuickWindow::frameSwapped, &quiet, [&quiet] { quiet.start(); });
    loop.exec();
}

QQuickItem *PopoverStage::item(const QString &path) const
{
    QQuickItem *found = m_window->rootObject();
    for (const QString &name : path.split(u'/')) {
        found = below(found, name);
        if (found == nullptr) {
            qFatal("the popover has no %s", qPrintable(path));
        }
    }
    return found;
}

std::pair<int, int> PopoverStage::delegates() const
{
    const QQuickItem *scrollArea = item(u"scrollArea"_s);
    const QList<QQuickItem *> children = item(u"projects/rows"_s)->childItems();
    int alive = 0;
    int onScreen = 0;
    for (const QQuickItem *child : children) {
        if (child->property("projectId").isValid() && child->property("rowY").isValid()) {
            ++alive;
            const double top = child->mapToItem(scrollArea, QPointF()).y();
            onScreen += top < scrollArea->height() && top + child->height() > 0 ? 1 : 0;
        }
    }
    return { alive, onScreen };
}

} // namespace torvi
