// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/EventMonitor.h"

#include "tests/support/FakeGlobalEvents.h"

#include <QList>

#include <gtest/gtest.h>

namespace torvi {

class EventMonitorTest : public testing::Test
{
protected:
    FakeGlobalEvents events;
    QList<std::optional<GlobalEvent>> handled;
    std::unique_ptr<EventMonitor> monitor = std::make_unique<EventMonitor>(
        events, Qt::LeftButton | Qt::RightButton,
        [this](const std::optional<GlobalEvent> &event) { handled.append(event); });
};

TEST_F(EventMonitorTest, IsNotStartedByItself)
{
    EXPECT_EQ(events.added, 0);
}

TEST_F(EventMonitorTest, InstallsAMonitorForItsMask)
{
    monitor->start();

    EXPECT_EQ(events.added, 1);
    EXPECT_EQ(events.mask, Qt::LeftButton | Qt::RightButton);
}

TEST_F(EventMonitorTest, PassesEventsOn)
{
    monitor->start();

    events.press({ 3, 4 }, Qt::RightButton);

    EXPECT_EQ(handled,
              QList<std::optional<GlobalEvent>>({ GlobalEvent{ Qt::RightButton, QPoint(3, 4) } }));
}

TEST_F(EventMonitorTest, StopRemovesTheMonitor)
{
    monitor->start();

    monitor->stop();

    EXPECT_EQ(events.removed, 1);
    EXPECT_FALSE(events.isInstalled());
}

TEST_F(EventMonitorTest, StopWithoutAMonitorDoesNothing)
{
    monitor->stop();
    EXPECT_EQ(events.removed, 0);

    monitor->start();
    monitor->stop();
    monitor->stop();
    EXPECT_EQ(events.removed, 1);
}

TEST_F(EventMonitorTest, ASecondStartOverwritesTheTokenWithoutRemovingIt)
{
    monitor->start();
    monitor->start();

    EXPECT_EQ(events.added, 2);
    EXPECT_EQ(events.removed, 0);
    EXPECT_EQ(events.alive, 1);

    events.press({});
    EXPECT_EQ(handled.size(), 1);
}

TEST_F(EventMonitorTest, CanBeStartedAgain)
{
    monitor->start();
    monitor->stop();

    monitor->start();
    events.press({});

    EXPECT_EQ(handled.size(), 1);
}

TEST_F(EventMonitorTest, ASystemWithoutMonitorsIsNoError)
{
    events.isUnsupported = true;

    monitor->start();
    monitor->stop();

    EXPECT_EQ(events.removed, 0);
}

TEST_F(EventMonitorTest, FreesItsTokenAtItsEnd)
{
    monitor->start();

    monitor.reset();

    EXPECT_FALSE(events.isInstalled());
}

} // namespace torvi
