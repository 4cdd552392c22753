// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Quick/QuickPopover.h"
#include "tests/support/WaitUntil.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QScreen>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

class PopoverWindowTest : public testing::Test
{
protected:
    QQmlEngine engine;
    int windowsMade = 0;
    int broughtToFront = 0;
    QByteArray content = "import QtQuick\nItem { focus: true }";
    PopoverWindow *window = nullptr;
    QuickPopover popover{ [this] { return makeWindow(); },
                          [this](QWindow &shown) {
                              ++broughtToFront;
                              EXPECT_TRUE(shown.isVisible());
                          } };

    std::unique_ptr<PopoverWindow> makeWindow()
    {
        ++windowsMade;
        auto made = std::make_unique<PopoverWindow>(&engine);
        QQmlComponent component(&engine);
        component.setData(content, QUrl());
        made->setContent(QUrl(), nullptr, component.create());
        window = made.get();
        return made;
    }

    static void press(QWindow *target, int key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
    }

    static void pressMouse(QWindow *target)
    {
        QMouseEvent event(QEvent::MouseButtonPress, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
    }
};

TEST_F(PopoverWindowTest, MakesNothingBeforeItIsShown)
{
    EXPECT_FALSE(popover.isShown());
    popover.performClose();

    EXPECT_EQ(windowsMade, 0);
}

TEST_F(PopoverWindowTest, IsAFramelessWindowOfItsSize)
{
    popover.show(QPoint(400, 0));

    EXPECT_TRUE(popover.isShown());
    EXPECT_EQ(window->title(), u"Torvi"_s);
    EXPECT_TRUE(window->flags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(window->type(), Qt::Tool);
    const int height = qMin(750, window->screen()->availableGeometry().height());
    EXPECT_EQ(window->size(), QSize(400, height));
    EXPECT_EQ(window->minimumSize(), window->size());
    EXPECT_EQ(window->maximumSize(), window->size());
    EXPECT_TRUE(waitUntil([this] { return window->rootObject()->size() == window->size(); }));
    EXPECT_EQ(broughtToFront, 1);
}

TEST_F(PopoverWindowTest, IsMadeOnceAndHiddenInBetween)
{
    popover.show(QPoint(400, 0));
    popover.performClose();
    EXPECT_FALSE(popover.isShown());

    popover.show(QPoint(400, 0));

    EXPECT_TRUE(popover.isShown());
    EXPECT_EQ(windowsMade, 1);
    EXPECT_EQ(broughtToFront, 2);
}

TEST_F(PopoverWindowTest, StandsAtTheItemThatItIsShownFor)
{
    popover.show(QPoint(300, 0));
    EXPECT_EQ(window->x(), 100);

    popover.show(QPoint(0, 0));
    EXPECT_EQ(window->x(), 0);
}

TEST_F(PopoverWindowTest, EscapeClosesIt)
{
    popover.show(std::nullopt);

    press(window, Qt::Key_A);
    EXPECT_TRUE(popover.isShown());
    press(window, Qt::Key_Escape);

    EXPECT_FALSE(popover.isShown());
}

TEST_F(PopoverWindowTest, EscapeIsFirstForWhatIsInside)
{
    content = "import QtQuick\nFocusScope { focus: true\n"
              "Item { focus: true; Keys.onEscapePressed: event => event.accepted = true } }";
    popover.show(std::nullopt);
    window->rootObject()->forceActiveFocus();

    press(window, Qt::Key_Escape);

    EXPECT_TRUE(popover.isShown());
}

TEST_F(PopoverWindowTest, APressInAnotherWindowOfTheApplicationClosesIt)
{
    QWindow other;
    other.create();
    popover.show(std::nullopt);

    pressMouse(window);
    EXPECT_TRUE(popover.isShown());
    pressMouse(&other);

    EXPECT_FALSE(popover.isShown());
}

TEST_F(PopoverWindowTest, APressInAWindowOfItsOwnDoesNotCloseIt)
{
    popover.show(std::nullopt);
    QWindow menu;
    menu.setTransientParent(window);
    menu.create();

    pressMouse(&menu);

    EXPECT_TRUE(popover.isShown());
}

} // namespace torvi
