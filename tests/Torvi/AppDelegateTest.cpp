// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/AppDelegate.h"

#include "tests/support/FakeDesktop.h"
#include "tests/support/StateManagerFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace torvi {

class AppDelegateTest : public StateManagerFixture
{
protected:
    static constexpr QPoint kItem{ 1100, 14 };
    static constexpr QPoint kElsewhere{ 300, 500 };

    FakeDesktop desktop;
    AuthStateManager *state = manager.get();
    ItemClick::Clock::time_point clock;
    std::unique_ptr<AppDelegate> delegate = makeDelegate(AppDelegate::TitleUpdates::atOpening);

    std::unique_ptr<AppDelegate> makeDelegate(AppDelegate::TitleUpdates titleUpdates)
    {
        return std::make_unique<AppDelegate>(
            desktop,
            [this] {
                desktop.log.append(u"container"_s);
                return std::make_unique<DependencyContainer>(settings, nullptr, watcher,
                                                             std::move(manager));
            },
            titleUpdates, [this] { return clock; });
    }

    void SetUp() override
    {
        reader->properties[u"default"_s].project = u"labs"_s;
    }

    void TearDown() override
    {
        delegate.reset();
        watcher->stream.finish();
        processEvents();
    }

    /// Starts the application, with the first refresh done.
    void launch()
    {
        executor->expect(GCloudCommand::listProjects(), listing({ u"labs"_s }));
        delegate->applicationDidFinishLaunching();
        processEvents();
        desktop.log.clear();
    }

    void clickItem() const
    {
        desktop.events.press(kItem);
        desktop.item->action(kItem);
    }
};

TEST_F(AppDelegateTest, DoesNothingBeforeTheLaunch)
{
    processEvents();

    EXPECT_TRUE(desktop.log.isEmpty());
    EXPECT_TRUE(reader->reads.isEmpty());
}

TEST_F(AppDelegateTest, LaunchesInItsOrder)
{
    delegate->applicationDidFinishLaunching();

    EXPECT_EQ(desktop.log,
              (QStringList{ u"container"_s, u"status item"_s, u"popover"_s,
                            u"image cloud.fill (Veldra)"_s, u"action"_s,
                            u"image cloud.fill (Torvi)"_s, u"title []"_s }));
    EXPECT_EQ(desktop.popover.stateManager, state);
    EXPECT_EQ(desktop.policy, ActivationPolicy::accessory);
}

TEST_F(AppDelegateTest, CreatesTheEventMonitorWithoutStartingIt)
{
    launch();

    EXPECT_EQ(desktop.events.added, 0);
}

TEST_F(AppDelegateTest, TheFirstTitleShowsTheStateBeforeAnyRefresh)
{
    executor->expect(GCloudCommand::listProjects(), listing({ u"labs"_s }));

    delegate->applicationDidFinishLaunching();

    EXPECT_TRUE(reader->reads.isEmpty()); // the refresh waits for the event loop
    EXPECT_EQ(desktop.item->title, QString());

    processEvents();

    EXPECT_EQ(state->currentContext().activeProject->id, u"labs"_s);
    EXPECT_EQ(desktop.item->title, QString()); // until the popover is opened
}

TEST_F(AppDelegateTest, WatchesFromTheLaunchToTheEnd)
{
    launch();
    EXPECT_EQ(watcher->starts, 1);
    EXPECT_EQ(watcher->stops, 0);

    delegate->applicationWillTerminate();

    EXPECT_EQ(watcher->stops, 1);
    EXPECT_TRUE(watcher->isCancelled);
}

TEST_F(AppDelegateTest, WatchesBeforeTheFirstRefreshReads)
{
    qsizetype readsBefore = -1;
    watcher->onStart = [this, &readsBefore] { readsBefore = reader->reads.size(); };

    launch();

    EXPECT_EQ(readsBefore, 0);
    EXPECT_FALSE(reader->reads.isEmpty());
}

TEST_F(AppDelegateTest, AnItemWithoutAButtonGetsNoImageAndNoAction)
{
    desktop.isItemWithButton = false;
    executor->expect(GCloudCommand::listProjects(), listing({}));

    delegate->applicationDidFinishLaunching();
    processEvents();

    EXPECT_EQ(desktop.log, (QStringList{ u"container"_s, u"status item"_s, u"popover"_s }));
    EXPECT_FALSE(desktop.item->action);
}

TEST_F(AppDelegateTest, TheToolTipFollowsTheContextAtOnce)
{
    launch();

    EXPECT_EQ(desktop.item->toolTipTitle, u"Torvi – labs"_s);
}

TEST_F(AppDelegateTest, ClickingTwiceShowsAndThenHidesThePopover)
{
    launch();

    clickItem();

    EXPECT_TRUE(desktop.popover.isShown);
    EXPECT_EQ(desktop.popover.anchor, kItem);
    EXPECT_EQ(desktop.events.added, 1);
    EXPECT_EQ(desktop.events.mask, Qt::LeftButton | Qt::RightButton);

    desktop.item->action(kItem); // a panel whose presses the monitor does not see

    EXPECT_FALSE(desktop.popover.isShown);
    EXPECT_EQ(desktop.events.removed, 1);
    EXPECT_FALSE(desktop.events.isInstalled());
}

TEST_F(AppDelegateTest, ThePressOnTheItemThatClosesThePopoverDoesNotReopenIt)
{
    launch();
    clickItem();

    clickItem();

    EXPECT_FALSE(desktop.popover.isShown);
    EXPECT_EQ(desktop.log.count(u"show popover"_s), 1);
    EXPECT_EQ(desktop.events.removed, 1);
    EXPECT_FALSE(desktop.events.isInstalled());

    clickItem();
    EXPECT_TRUE(desktop.popover.isShown);
}

TEST_F(AppDelegateTest, ThePressOnTheItemMayBeHeldDown)
{
    launch();
    clickItem();

    desktop.events.press(kItem);
    clock += 1500ms;
    desktop.item->action(kItem);

    EXPECT_FALSE(desktop.popover.isShown);
}

TEST_F(AppDelegateTest, ClickingElsewhereClosesThePopoverAndLeavesTheMonitorOn)
{
    launch();
    clickItem();

    desktop.events.press(kElsewhere);

    EXPECT_FALSE(desktop.popover.isShown);
    EXPECT_TRUE(desktop.events.isInstalled());
    EXPECT_EQ(desktop.events.removed, 0);

    clickItem(); // the monitor sees this press, too, and it must not swallow it

    EXPECT_TRUE(desktop.popover.isShown);
    EXPECT_EQ(desktop.events.added, 2);
    EXPECT_EQ(desktop.events.removed, 0);
    EXPECT_EQ(desktop.events.alive, 1);

    clickItem();
    EXPECT_FALSE(desktop.popover.isShown);
    EXPECT_FALSE(desktop.events.isInstalled());
}

TEST_F(AppDelegateTest, ARightClickElsewhereClosesThePopover)
{
    launch();
    clickItem();

    desktop.events.press(kElsewhere, Qt::RightButton);

    EXPECT_FALSE(desktop.popover.isShown);
}

TEST_F(AppDelegateTest, AClickElsewhereWithAClosedPopoverDoesNothing)
{
    launch();
    clickItem();
    desktop.events.press(kElsewhere);
    desktop.log.clear();

    desktop.events.press(kElsewhere);

    EXPECT_TRUE(desktop.log.isEmpty());
}

TEST_F(AppDelegateTest, LosingTheFocusToThePanelDoesNotReopenThePopover)
{
    launch();
    desktop.item->action(kItem);

    desktop.events.loseFocus();
    EXPECT_FALSE(desktop.popover.isShown);
    clock += 10ms;
    desktop.item->action(kItem);

    EXPECT_FALSE(desktop.popover.isShown);
    EXPECT_FALSE(desktop.events.isInstalled());
}

TEST_F(AppDelegateTest, AClickLongAfterTheFocusWasLostOpensThePopover)
{
    launch();
    desktop.item->action(kItem);
    desktop.events.loseFocus();

    clock += 2s;
    desktop.item->action(kItem);

    EXPECT_TRUE(desktop.popover.isShown);
}

TEST_F(AppDelegateTest, EachOpeningRefreshesAndThenUpdatesTheTitle)
{
    launch();
    now += AuthStateManager::projectCacheTTL;
    const auto run = executor->expect(GCloudCommand::listProjects());

    clickItem();

    EXPECT_FALSE(state->isLoading()); // the refresh waits for the event loop
    processEvents();
    EXPECT_TRUE(state->isLoading());
    EXPECT_EQ(desktop.item->title, QString());

    run->finish(listing({ u"labs"_s }));

    EXPECT_EQ(desktop.item->title, u" labs"_s);
    EXPECT_EQ(desktop.item->description, u"Torvi"_s);
}

TEST_F(AppDelegateTest, ClosingThePopoverNeitherRefreshesNorUpdates)
{
    launch();
    clickItem();
    processEvents();
    desktop.log.clear();
    reader->reads.clear();

    clickItem();
    processEvents();

    EXPECT_EQ(desktop.log, QStringList{ u"close popover"_s });
    EXPECT_TRUE(reader->reads.isEmpty());
}

TEST_F(AppDelegateTest, ARefreshAtAnOpeningRunsBesideTheOneAtTheLaunch)
{
    const auto atLaunch = executor->expect(GCloudCommand::listProjects());
    const auto atOpening = executor->expect(GCloudCommand::listProjects());
    delegate->applicationDidFinishLaunching();
    processEvents();

    desktop.item->action(kItem);
    processEvents();

    EXPECT_TRUE(atLaunch->isRunning());
    EXPECT_TRUE(atOpening->isRunning());
    atOpening->finish(listing({ u"labs"_s }));
    EXPECT_EQ(desktop.item->title, u" labs"_s);
    atLaunch->finish(listing({ u"labs"_s }));
}

TEST_F(AppDelegateTest, ChangesOfTheContextDoNotReachTheTitleBeforeTheNextOpening)
{
    launch();
    clickItem();
    processEvents();
    ASSERT_EQ(desktop.item->title, u" labs"_s);

    reader->properties[u"default"_s].project = u"other"_s;
    watcher->stream.yield();
    processEvents();

    EXPECT_EQ(state->currentContext().activeProject->id, u"other"_s);
    EXPECT_EQ(desktop.item->title, u" labs"_s);

    clickItem(); // closes
    EXPECT_EQ(desktop.item->title, u" labs"_s);
    clickItem();
    processEvents();
    EXPECT_EQ(desktop.item->title, u" other"_s);
}

TEST_F(AppDelegateTest, ALiveTitleFollowsTheContextAndTheFormat)
{
    delegate = makeDelegate(AppDelegate::TitleUpdates::live);
    launch();
    EXPECT_EQ(desktop.item->title, u" labs"_s);

    reader->properties[u"default"_s].project = u"other"_s;
    watcher->stream.yield();
    processEvents();
    EXPECT_EQ(desktop.item->title, u" other"_s);

    settings->format = MenubarDisplayFormat::iconOnly;
    Q_EMIT settings->changed();
    EXPECT_EQ(desktop.item->title, QString());
}

TEST_F(AppDelegateTest, ATitleThatIsNotLiveTakesANewFormatAtTheNextOpening)
{
    launch();
    clickItem();
    processEvents();

    settings->format = MenubarDisplayFormat::iconOnly;
    Q_EMIT settings->changed();
    EXPECT_EQ(desktop.item->title, u" labs"_s);

    clickItem(); // closes
    clickItem();
    EXPECT_EQ(desktop.item->title, u" labs"_s);
    processEvents();
    EXPECT_EQ(desktop.item->title, QString());
}

TEST_F(AppDelegateTest, AToggleFromElsewhereOpensAtTheItemOnceItIsKnown)
{
    launch();

    delegate->togglePopover();
    EXPECT_EQ(desktop.popover.anchor, std::nullopt);
    delegate->togglePopover();
    EXPECT_FALSE(desktop.popover.isShown);

    clickItem();
    clickItem();
    delegate->togglePopover();
    EXPECT_EQ(desktop.popover.anchor, kItem);
}

TEST_F(AppDelegateTest, ShowingAnOpenPopoverLeavesItOpen)
{
    launch();

    delegate->showPopover();
    delegate->showPopover();

    EXPECT_TRUE(desktop.popover.isShown);
    EXPECT_EQ(desktop.events.added, 1);
    EXPECT_EQ(desktop.log.count(u"show popover"_s), 1);
}

TEST_F(AppDelegateTest, TheManagerWindowOpensFromThePopover)
{
    launch();
    clickItem();
    desktop.log.clear();

    desktop.popover.onOpenManager();

    EXPECT_EQ(
        desktop.log,
        (QStringList{ u"close popover"_s, u"regular"_s, u"make window"_s, u"front window 1"_s }));
    EXPECT_EQ(desktop.window->stateManager, state);
    EXPECT_TRUE(desktop.events.isInstalled()); // only a toggle stops the monitor
}

TEST_F(AppDelegateTest, OpeningTheManagerWindowTwiceBringsTheSameWindowToTheFront)
{
    launch();
    delegate->openManagerWindow();
    desktop.log.clear();

    delegate->openManagerWindow();

    EXPECT_EQ(desktop.log, (QStringList{ u"close popover"_s, u"regular"_s, u"front window 1"_s }));
    EXPECT_EQ(desktop.windowsMade, 1);
}

TEST_F(AppDelegateTest, ClosingTheManagerWindowEndsTheRegularState)
{
    launch();
    delegate->openManagerWindow();

    desktop.closeWindow();

    EXPECT_EQ(desktop.policy, ActivationPolicy::accessory);
    EXPECT_EQ(desktop.window->window, nullptr);
}

TEST_F(AppDelegateTest, AfterAClosingTheManagerWindowIsANewOne)
{
    launch();
    delegate->openManagerWindow();
    desktop.closeWindow();
    desktop.log.clear();

    delegate->openManagerWindow();

    EXPECT_EQ(
        desktop.log,
        (QStringList{ u"close popover"_s, u"regular"_s, u"make window"_s, u"front window 2"_s }));
}

TEST_F(AppDelegateTest, AManagerWindowThatIsNotVisibleIsReplaced)
{
    launch();
    delegate->openManagerWindow();
    const auto hidden = desktop.window;
    hidden->isVisible = false;

    delegate->openManagerWindow();

    EXPECT_EQ(desktop.windowsMade, 2);
    EXPECT_EQ(hidden->window, nullptr);
    EXPECT_TRUE(desktop.window->isVisible);
}

TEST_F(AppDelegateTest, ClosingSomeOtherWindowChangesNothing)
{
    struct OtherWindow final : Window
    {
        [[nodiscard]] bool isVisible() const override
        {
            return true;
        }
        void makeKeyAndOrderFront() override { }
    };
    launch();
    delegate->openManagerWindow();

    delegate->windowWillClose(OtherWindow());

    EXPECT_EQ(desktop.policy, ActivationPolicy::regular);
    EXPECT_NE(desktop.window->window, nullptr);
    delegate->openManagerWindow();
    EXPECT_EQ(desktop.windowsMade, 1);
}

TEST_F(AppDelegateTest, ARefreshUnderWayAtTheEndHasNoEffect)
{
    const auto atLaunch = executor->expect(GCloudCommand::listProjects());
    const auto atOpening = executor->expect(GCloudCommand::listProjects());
    delegate->applicationDidFinishLaunching();
    processEvents();
    desktop.item->action(kItem);
    processEvents();

    delegate.reset();

    atLaunch->finish(listing({}));
    atOpening->finish(listing({}));
    processEvents();
}

TEST_F(AppDelegateTest, RefreshesThatHaveNotStartedAtTheEndNeverDo)
{
    delegate->applicationDidFinishLaunching();
    desktop.item->action(kItem);

    delegate.reset();
    processEvents();

    EXPECT_TRUE(reader->reads.isEmpty());
}

TEST_F(AppDelegateTest, WhatThePopoverKeepsOfTheDelegateIsWeak)
{
    launch();
    const auto onOpenManager = desktop.popover.onOpenManager;
    clickItem();
    const auto block = desktop.events.block;

    delegate.reset();
    onOpenManager();
    block(GlobalEvent{ Qt::LeftButton, kElsewhere });

    EXPECT_EQ(desktop.windowsMade, 0);
}

} // namespace torvi
