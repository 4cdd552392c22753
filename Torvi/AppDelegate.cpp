// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/AppDelegate.h"

#include <QPointer>
#include <QThread>

#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

/// Runs `task` from the event loop, never inside the caller.
template <typename Task>
void startTask(QObject *owner, Task task)
{
    QMetaObject::invokeMethod(owner, std::move(task), Qt::QueuedConnection);
}

} // namespace

AppDelegate::AppDelegate(Desktop &desktop, MakeContainer makeContainer, TitleUpdates titleUpdates,
                         std::function<ItemClick::Clock::time_point()> now)
    : m_desktop(desktop)
    , m_makeContainer(std::move(makeContainer))
    , m_titleUpdates(titleUpdates)
    , m_now(std::move(now))
{
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching()
{
    Q_ASSERT(QThread::currentThread() == thread());
    m_container = m_makeContainer();
    m_statusItem = m_desktop.makeStatusItem();
    AuthStateManager &stateManager = m_container->stateManager();
    m_iconManager = std::make_unique<MenubarIconManager>(*m_statusItem, stateManager,
                                                         m_container->settingsStore());
    setUpPopover();
    setUpStatusButton();
    stateManager.startWatching();
    startTask(this, [&stateManager] { stateManager.reload(); });
    m_iconManager->update();
    setUpEventMonitor();
}

void AppDelegate::setUpPopover()
{
    const QPointer self(this);
    m_popover = m_desktop.views().makePopover(m_container->stateManager(), [self] {
        if (self) {
            self->openManagerWindow();
        }
    });
}

void AppDelegate::setUpStatusButton()
{
    if (!m_statusItem->hasButton()) {
        return;
    }
    m_statusItem->setImage(u"cloud.fill"_s, u"Veldra"_s);
    m_statusItem->setAction([this](const QPoint &position) { statusItemClicked(position); });
    m_toolTip = std::make_unique<StatusToolTip>(*m_statusItem, m_container->stateManager());
    if (m_titleUpdates == TitleUpdates::live) {
        followEveryChange();
    }
}

void AppDelegate::followEveryChange()
{
    const auto update = [this] { m_iconManager->update(); };
    connect(&m_container->stateManager(), &AuthStateManager::currentContextChanged, this, update);
    connect(&m_container->settingsStore(), &SettingsStoring::changed, this, update);
}

void AppDelegate::setUpEventMonitor()
{
    const QPointer self(this);
    m_eventMonitor
        = std::make_unique<EventMonitor>(m_desktop.globalEvents(), Qt::LeftButton | Qt::RightButton,
                                         [self](const std::optional<GlobalEvent> &event) {
                                             if (self) {
                                                 self->pressedElsewhere(event);
                                             }
                                         });
}

void AppDelegate::applicationWillTerminate()
{
    Q_ASSERT(QThread::currentThread() == thread());
    m_container->stateManager().stopWatching();
}

void AppDelegate::statusItemClicked(const QPoint &position)
{
    m_itemPosition = position;
    if (m_itemClick.takeIsSame(position, m_now())) {
        m_eventMonitor->stop();
        return;
    }
    togglePopover();
}

void AppDelegate::pressedElsewhere(const std::optional<GlobalEvent> &event)
{
    if (!m_popover->isShown()) {
        m_itemClick.closedNothing();
        return;
    }
    m_popover->performClose();
    m_itemClick.closedPopover(event ? event->position : std::nullopt, m_now());
}

void AppDelegate::togglePopover()
{
    Q_ASSERT(QThread::currentThread() == thread());
    if (m_popover->isShown()) {
        m_popover->performClose();
        m_eventMonitor->stop();
        return;
    }
    m_popover->show(m_itemPosition);
    m_eventMonitor->start();
    startTask(this, [this] { reloadAndUpdateTitle(); });
}

void AppDelegate::showPopover()
{
    if (!m_popover->isShown()) {
        togglePopover();
    }
}

QCoro::Task<> AppDelegate::reloadAndUpdateTitle()
{
    const QPointer self(this);
    co_await m_container->stateManager().reload();
    if (self) {
        m_iconManager->update();
    }
}

void AppDelegate::openManagerWindow()
{
    Q_ASSERT(QThread::currentThread() == thread());
    m_popover->performClose();
    m_desktop.activationPolicy().setActivationPolicy(ActivationPolicy::regular);
    if (!m_managerWindow || !m_managerWindow->isVisible()) {
        m_managerWindow = m_desktop.views().makeManagerWindow(
            m_container->stateManager(), [this](const Window &window) { windowWillClose(window); });
    }
    m_managerWindow->makeKeyAndOrderFront();
}

void AppDelegate::windowWillClose(const Window &window)
{
    Q_ASSERT(QThread::currentThread() == thread());
    if (&window != m_managerWindow.get()) {
        return;
    }
    m_managerWindow.reset();
    m_desktop.activationPolicy().setActivationPolicy(ActivationPolicy::accessory);
}

} // namespace torvi
