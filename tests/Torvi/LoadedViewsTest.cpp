// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/LoadedViews.h"

#include "tests/support/FakeClipboard.h"
#include "tests/support/StateManagerFixture.h"

#include <QCoreApplication>
#include <QFile>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace torvi {

class LoadedViewsTest : public StateManagerFixture
{
protected:
    FakeClipboard clipboard;
    QStringList failures;
    QWindow *inFront = nullptr;

    LoadedViews viewsFrom(const QString &module)
    {
        return LoadedViews(module,
                           { clipboard, [this](QWindow &window) { inFront = &window; },
                             [](QWindow & /*window*/, const auto & /*setDark*/) {} },
                           [this](const QString &message) { failures.append(message); });
    }
};

TEST_F(LoadedViewsTest, FindsTheModuleFromTheProgram)
{
    EXPECT_TRUE(QFile::exists(LoadedViews::module(QCoreApplication::applicationDirPath())));
    EXPECT_TRUE(LoadedViews::module(u"/opt/torvi/bin"_s).startsWith(u"/opt/torvi/lib"_s));
}

TEST_F(LoadedViewsTest, ShowsWhatTheModuleMakes)
{
    LoadedViews views = viewsFrom(LoadedViews::module(QCoreApplication::applicationDirPath()));
    const auto popover = views.makePopover(*manager, [] {});

    popover->show(QPoint(200, 0));

    EXPECT_EQ(failures, QStringList());
    EXPECT_TRUE(popover->isShown());
    EXPECT_NE(inFront, nullptr);
    popover->performClose();
    EXPECT_FALSE(popover->isShown());
}

TEST_F(LoadedViewsTest, TouchesNoModuleUntilSomethingIsShown)
{
    LoadedViews views = viewsFrom(u"/nonexistent/views.so"_s);

    const auto popover = views.makePopover(*manager, [] {});
    popover->performClose();

    EXPECT_FALSE(popover->isShown());
    EXPECT_EQ(failures, QStringList());
}

TEST_F(LoadedViewsTest, NamesTheModuleThatIsMissing)
{
    LoadedViews views = viewsFrom(u"/nonexistent/views.so"_s);

    const auto popover = views.makePopover(*manager, [] {});
    popover->show(std::nullopt);

    EXPECT_FALSE(popover->isShown());
    ASSERT_EQ(failures.size(), 1);
    EXPECT_TRUE(failures[0].contains(u"/nonexistent/views.so"_s)) << failures[0].toStdString();
}

TEST_F(LoadedViewsTest, MakesAWindowThatNeverShowsWhenTheModuleIsMissing)
{
    LoadedViews views = viewsFrom(u"/nonexistent/views.so"_s);

    const auto window = views.makeManagerWindow(*manager, [](const Window & /*window*/) {});
    window->makeKeyAndOrderFront();

    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(failures.size(), 1);
}

TEST_F(LoadedViewsTest, RefusesAModuleOfAnotherVersion)
{
    LoadedViews views = viewsFrom(QStringLiteral(TORVI_OTHER_VERSION));

    const auto popover = views.makePopover(*manager, [] {});
    popover->show(std::nullopt);

    EXPECT_FALSE(popover->isShown());
    ASSERT_EQ(failures.size(), 1);
    EXPECT_TRUE(failures[0].contains(u"is of another version"_s)) << failures[0].toStdString();
}

} // namespace torvi
