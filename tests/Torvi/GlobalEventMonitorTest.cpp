// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/GlobalEventMonitor.h"

#include "Torvi/Linux/FocusLossListener.h"
#include "Torvi/Linux/RawPressListener.h"

#include <QGuiApplication>
#include <QList>

#include <gtest/gtest.h>

namespace torvi {

class GlobalEventMonitorTest : public testing::Test
{
protected:
    GlobalEventMonitor monitor;
    QList<GlobalEvent> events;
    GlobalEventMonitoring::Block block = [this](const GlobalEvent &event) { events.append(event); };

    static void becomes(Qt::ApplicationState state)
    {
        Q_EMIT qGuiApp->applicationStateChanged(state);
    }
};

TEST_F(GlobalEventMonitorTest, WithoutAnXServerItListensToTheLossOfTheFocus)
{
    const auto token = monitor.addGlobalMonitor(Qt::LeftButton, block);

    becomes(Qt::ApplicationActive);
    EXPECT_TRUE(events.isEmpty());
    becomes(Qt::ApplicationInactive);

    EXPECT_EQ(events, QList<GlobalEvent>{ GlobalEvent{} });
}

TEST_F(GlobalEventMonitorTest, ARemovedMonitorIsSilent)
{
    auto token = monitor.addGlobalMonitor(Qt::LeftButton, block);

    monitor.removeMonitor(std::move(token));
    becomes(Qt::ApplicationInactive);

    EXPECT_TRUE(events.isEmpty());
}

TEST_F(GlobalEventMonitorTest, ADroppedTokenFreesItsMonitor)
{
    auto token = monitor.addGlobalMonitor(Qt::LeftButton, block);

    token.reset();
    becomes(Qt::ApplicationInactive);

    EXPECT_TRUE(events.isEmpty());
}

TEST_F(GlobalEventMonitorTest, ABlockMayDropItsOwnMonitor)
{
    std::unique_ptr<GlobalEventMonitoring::Token> token;
    int calls = 0;
    token = monitor.addGlobalMonitor(Qt::LeftButton, [&](const GlobalEvent &) {
        ++calls;
        token.reset();
    });

    becomes(Qt::ApplicationInactive);
    becomes(Qt::ApplicationInactive);

    EXPECT_EQ(calls, 1);
}

TEST_F(GlobalEventMonitorTest, ThereAreNoRawPressesWithoutAnXServer)
{
    EXPECT_EQ(RawPressListener::create(Qt::LeftButton, block), nullptr);
}

} // namespace torvi
