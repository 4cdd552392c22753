// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Quick/QuickViewFactory.h"

#include "Torvi/AppDelegate.h"
#include "tests/support/FakeClipboard.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/StateManagerFixture.h"

#include <QQuickItem>
#include <QQuickView>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

/// A desktop that only keeps an account, but for its windows.
class DesktopWithWindows final : public Desktop
{
public:
    explicit DesktopWithWindows(ViewFactory &views)
        : m_views(views)
    {
    }

    FakeDesktop account;

    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem() override
    {
        return account.makeStatusItem();
    }
    [[nodiscard]] GlobalEventMonitoring &globalEvents() override
    {
        return account.events;
    }
    [[nodiscard]] ActivationPolicySwitching &activationPolicy() override
    {
        return account;
    }
    [[nodiscard]] ViewFactory &views() override
    {
        return m_views;
    }

private:
    ViewFactory &m_views;
};

} // namespace

class QuickViewFactoryTest : public StateManagerFixture
{
protected:
    FakeClipboard clipboard;
    QWindow *inFront = nullptr;
    std::function<void(bool isDark)> setDark; ///< of the window that follows the colour scheme
    int managersAskedFor = 0;
    QuickViewFactory views{ { clipboard, [this](QWindow &window) { inFront = &window; },
                              [this](QWindow & /*window*/, const auto &set) { setDark = set; } } };

    std::unique_ptr<Popover> makePopover()
    {
        return views.makePopover(*manager, [this] { ++managersAskedFor; });
    }

    /// What the window in front shows.
    [[nodiscard]] QQuickItem &view() const
    {
        return *qobject_cast<QQuickView *>(inFront)->rootObject();
    }

    [[nodiscard]] bool isDark() const
    {
        const auto *background = view().findChild<QQuickItem *>(u"background"_s);
        return background->property("color").value<QColor>().lightnessF() < 0.5F;
    }
};

TEST_F(QuickViewFactoryTest, ThePopoverIsDarkWhateverTheDesktopPrefers)
{
    const auto popover = makePopover();

    popover->show(std::nullopt);

    EXPECT_TRUE(isDark());
    EXPECT_FALSE(setDark) << "it follows the colour scheme";
}

TEST_F(QuickViewFactoryTest, TheManagerWindowFollowsTheColourScheme)
{
    const auto window = views.makeManagerWindow(*manager, [](const Window & /*window*/) {});
    window->makeKeyAndOrderFront();
    ASSERT_TRUE(setDark);

    setDark(false);
    EXPECT_FALSE(isDark());

    setDark(true);
    EXPECT_TRUE(isDark());
}

TEST_F(QuickViewFactoryTest, ThePopoverRefreshesWhenItFirstAppears)
{
    const auto popover = makePopover();
    processEvents();
    EXPECT_TRUE(reader->reads.isEmpty());

    executor->expect(GCloudCommand::listProjects(), listing({}));
    popover->show(std::nullopt);
    processEvents();
    EXPECT_FALSE(reader->reads.isEmpty());

    reader->reads.clear();
    popover->performClose();
    popover->show(std::nullopt);
    processEvents();
    EXPECT_TRUE(reader->reads.isEmpty());
}

TEST_F(QuickViewFactoryTest, TheFirstOpeningRunsTwoRefreshesAtOnceAndTheNextOne)
{
    AuthStateManager &state = *manager;
    DesktopWithWindows desktop(views);
    AppDelegate delegate(desktop, [this] {
        return std::make_unique<DependencyContainer>(settings, nullptr, watcher,
                                                     std::move(manager));
    });
    executor->expect(GCloudCommand::listProjects(), listing({}));
    delegate.applicationDidFinishLaunching();
    processEvents();
    now += AuthStateManager::projectCacheTTL;

    const auto first = executor->expect(GCloudCommand::listProjects());
    const auto second = executor->expect(GCloudCommand::listProjects());
    delegate.togglePopover();
    processEvents();
    EXPECT_TRUE(first->isRunning());
    EXPECT_TRUE(second->isRunning());
    first->finish(listing({}));
    second->finish(listing({}));
    delegate.togglePopover();
    now += AuthStateManager::projectCacheTTL;

    const auto third = executor->expect(GCloudCommand::listProjects()); // another would fail
    delegate.togglePopover();
    processEvents();
    EXPECT_TRUE(third->isRunning());
    third->finish(listing({}));
    EXPECT_FALSE(state.isLoading());
    watcher->stream.finish();
}

TEST_F(QuickViewFactoryTest, ThePopoversViewAsksForTheManagerAndItsOwnEnd)
{
    executor->expect(GCloudCommand::listProjects(), listing({}));
    const auto popover = makePopover();
    popover->show(std::nullopt);
    processEvents();

    QMetaObject::invokeMethod(&view(), "openManager");
    EXPECT_EQ(managersAskedFor, 1);

    QMetaObject::invokeMethod(&view(), "close");
    EXPECT_FALSE(popover->isShown());
}

} // namespace torvi
