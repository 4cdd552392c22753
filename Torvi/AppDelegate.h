// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/DependencyContainer.h"
#include "Torvi/Desktop.h"
#include "Torvi/EventMonitor.h"
#include "Torvi/ItemClick.h"
#include "Torvi/MenubarIconManager.h"
#include "Torvi/StatusToolTip.h"

#include <QObject>

#include <memory>

namespace torvi {

/// Starts and ends the application: the object graph, the status item, the popover and the manager
/// window. Wiring only; no logic of its own. Main thread only.
///
/// Lifetime: refreshes that are under way when the delegate is destroyed end without effect.
class AppDelegate final : public QObject
{
    Q_OBJECT

public:
    using MakeContainer = std::function<std::unique_ptr<DependencyContainer>()>;

    /// When the status item's title is drawn anew.
    enum class TitleUpdates {
        atOpening, ///< at the start, and after the refresh of each opening of the popover
        live, ///< also at each change of the context and of the display format
    };

    /// Does nothing yet. `desktop` must outlive this object; `now` is replaced in tests.
    AppDelegate(Desktop &desktop, MakeContainer makeContainer,
                TitleUpdates titleUpdates = TitleUpdates::atOpening,
                std::function<ItemClick::Clock::time_point()> now = &ItemClick::Clock::now);
    ~AppDelegate() override;

    void applicationDidFinishLaunching();
    void applicationWillTerminate();

    /// What a click on the status item does; each opening refreshes everything.
    void togglePopover();
    /// Opens the popover when it is not open.
    void showPopover();
    void openManagerWindow();
    /// `window` is being closed.
    void windowWillClose(const Window &window);

private:
    void setUpPopover();
    void setUpStatusButton();
    void followEveryChange();
    void setUpEventMonitor();
    void statusItemClicked(const QPoint &position);
    void pressedElsewhere(const std::optional<GlobalEvent> &event);
    QCoro::Task<> reloadAndUpdateTitle();

    Desktop &m_desktop;
    MakeContainer m_makeContainer;
    TitleUpdates m_titleUpdates;
    std::function<ItemClick::Clock::time_point()> m_now;

    // Destroyed from the last to the first: what uses the container goes before it.
    std::unique_ptr<DependencyContainer> m_container;
    std::unique_ptr<StatusItem> m_statusItem;
    std::unique_ptr<MenubarIconManager> m_iconManager;
    std::unique_ptr<StatusToolTip> m_toolTip;
    std::unique_ptr<Popover> m_popover;
    std::unique_ptr<EventMonitor> m_eventMonitor;
    std::unique_ptr<Window> m_managerWindow;

    ItemClick m_itemClick;
    std::optional<QPoint> m_itemPosition; ///< as of the last click on the item
};

} // namespace torvi
