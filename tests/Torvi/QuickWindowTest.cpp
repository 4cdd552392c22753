// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Quick/QuickWindow.h"

#include <QCoreApplication>
#include <QPointer>
#include <QQmlEngine>
#include <QScreen>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

class QuickWindowTest : public testing::Test
{
protected:
    QQmlEngine engine;
    QPointer<ManagerWindow> shown;
    int broughtToFront = 0;
    int closed = 0;
    std::unique_ptr<QuickWindow> window = std::make_unique<QuickWindow>(
        [this](std::function<void()> onWillClose) {
            auto made = std::make_unique<ManagerWindow>(&engine, std::move(onWillClose));
            shown = made.get();
            return made;
        },
        [this](const Window &closing) {
            ++closed;
            EXPECT_EQ(&closing, window.get());
            if (isDroppedAtClose) {
                window.reset();
            }
        },
        [this](QWindow &) { ++broughtToFront; });
    bool isDroppedAtClose = false;
};

TEST_F(QuickWindowTest, IsAnOrdinaryResizableWindowInTheMiddleOfTheScreen)
{
    EXPECT_EQ(shown->title(), u"Torvi"_s);
    EXPECT_EQ(shown->size(), QSize(600, 450));
    EXPECT_EQ(shown->type(), Qt::Window);
    EXPECT_EQ(shown->minimumSize(), QSize(480, 360));
    EXPECT_NE(shown->minimumSize(), shown->maximumSize());
    EXPECT_EQ(shown->geometry().center(), shown->screen()->availableGeometry().center());
}

TEST_F(QuickWindowTest, IsVisibleOnceItIsBroughtToTheFront)
{
    EXPECT_FALSE(window->isVisible());

    window->makeKeyAndOrderFront();

    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(broughtToFront, 1);
}

TEST_F(QuickWindowTest, AMinimisedWindowIsVisibleAndComesBack)
{
    window->makeKeyAndOrderFront();
    shown->showMinimized();
    EXPECT_TRUE(window->isVisible());

    window->makeKeyAndOrderFront();

    EXPECT_FALSE(shown->windowStates().testFlag(Qt::WindowMinimized));
}

TEST_F(QuickWindowTest, TellsOnceThatItCloses)
{
    window->makeKeyAndOrderFront();

    shown->close();

    EXPECT_EQ(closed, 1);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(QuickWindowTest, MayBeDroppedWhileItCloses)
{
    isDroppedAtClose = true;
    window->makeKeyAndOrderFront();

    shown->close();

    EXPECT_EQ(window, nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(shown.isNull());
}

TEST_F(QuickWindowTest, ItsEndEndsTheWindow)
{
    window->makeKeyAndOrderFront();

    window.reset();

    EXPECT_TRUE(shown.isNull());
    EXPECT_EQ(closed, 0);
}

} // namespace torvi
