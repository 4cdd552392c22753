// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/MissingPanelHint.h"

#include "tests/support/FakeNotifications.h"
#include "tests/support/FakeStatusNotifierWatcher.h"
#include "tests/support/PrivateBus.h"
#include "tests/support/WaitUntil.h"

#include <QPointer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace torvi {

class MissingPanelHintTest : public testing::Test
{
protected:
    PrivateBus bus;
    QDBusConnection connection = bus.connect();
    std::optional<FakeStatusNotifierWatcher> watcher;
    std::optional<FakeNotifications> notifications;
    QStringList said;
    std::unique_ptr<StatusNotifierRegistration> registration;
    std::optional<bool> isPanelThere;

    void startItem()
    {
        registration = std::make_unique<StatusNotifierRegistration>(connection, u"an.item"_s);
    }

    /// Looks, and waits for what comes of it.
    void look()
    {
        auto *hint = new MissingPanelHint(
            connection, registration.get(), [this](const QString &text) { said.append(text); },
            0ms);
        QObject::connect(hint, &MissingPanelHint::decided, hint,
                         [this](bool isThere) { isPanelThere = isThere; });
        EXPECT_TRUE(waitUntil([this] { return isPanelThere.has_value(); }));
    }

    [[nodiscard]] bool isRegistered() const
    {
        return waitUntil([this] { return registration->isRegistered(); });
    }
};

TEST_F(MissingPanelHintTest, SaysOnceHowToReachTorviWithoutAPanel)
{
    notifications.emplace(bus.connect());
    startItem();

    look();

    EXPECT_EQ(isPanelThere, false);
    EXPECT_EQ(said, QStringList{ MissingPanelHint::text() });
    EXPECT_TRUE(waitUntil([this] { return !notifications->shown.isEmpty(); }));
    EXPECT_EQ(notifications->shown,
              (QStringList{ u"Torvi is running"_s, MissingPanelHint::text() }));
}

TEST_F(MissingPanelHintTest, ADesktopWithoutNotificationsIsNoError)
{
    startItem();

    look();

    EXPECT_EQ(said.size(), 1);
}

TEST_F(MissingPanelHintTest, SaysNothingWhenAPanelShowsTheItem)
{
    notifications.emplace(bus.connect());
    watcher.emplace(bus.connect());
    startItem();
    ASSERT_TRUE(isRegistered());

    look();

    EXPECT_EQ(isPanelThere, true);
    EXPECT_TRUE(said.isEmpty());
    EXPECT_TRUE(notifications->shown.isEmpty());
}

TEST_F(MissingPanelHintTest, SaysItWhenAWatcherRunsWithoutAPanel)
{
    watcher.emplace(bus.connect());
    watcher->isHostRegistered = false;
    startItem();
    ASSERT_TRUE(isRegistered());

    look();

    EXPECT_EQ(said.size(), 1);
}

TEST_F(MissingPanelHintTest, EndsWithTheItem)
{
    startItem();
    auto *hint = new MissingPanelHint(
        connection, registration.get(), [this](const QString &text) { said.append(text); }, 0ms);
    const QPointer watched(hint);

    registration.reset();

    EXPECT_TRUE(watched.isNull());
    QCoreApplication::processEvents();
    EXPECT_TRUE(said.isEmpty());
}

TEST(MissingPanelHintTextTest, NamesTheCommand)
{
    EXPECT_TRUE(MissingPanelHint::text().contains(u"torvi --toggle"_s));
}

} // namespace torvi
