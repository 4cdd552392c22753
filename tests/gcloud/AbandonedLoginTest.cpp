// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudProcesses.h"
#include "tests/gcloud/GCloudTest.h"

#include <csignal>

using namespace Qt::StringLiterals;

namespace torvi {

class GCloudAbandonedLoginTest : public GCloudTest
{
protected:
    /// A sign-in that waits for a user who does not come.
    std::unique_ptr<Program> startAbandonedLogin()
    {
        environment.insert(u"TORVI_TEST_BROWSER"_s, u"ignore"_s);
        auto running = startTorvictl({ u"adc-login"_s });
        EXPECT_TRUE(running->waitForErrors(
            [](const QByteArray &errors) { return !signInAddresses(errors).isEmpty(); }));
        return running;
    }

    [[nodiscard]] bool isNoGCloudLeft()
    {
        return waitUntilNoGCloudIsLeft(environment.value(u"CLOUDSDK_CONFIG"_s));
    }
};

TEST_F(GCloudAbandonedLoginTest, DoesNotHinderAnother)
{
    const auto first = startAbandonedLogin();
    environment.insert(u"TORVI_TEST_BROWSER"_s, u"sign-in"_s);

    const Ended second = torvictl({ u"adc-login"_s });

    EXPECT_TRUE(exitedWith(0, second));
    first->signal(SIGINT);
    EXPECT_TRUE(exitedWith(130, first->waitForEnd()));
}

TEST_F(GCloudAbandonedLoginTest, CtrlCInATerminalEndsBoth)
{
    const auto running = startAbandonedLogin();

    running->signalGroup(SIGINT);

    EXPECT_TRUE(exitedWith(130, running->waitForEnd()));
    EXPECT_TRUE(isNoGCloudLeft());
    EXPECT_EQ(adcFile(), std::nullopt);
}

TEST_F(GCloudAbandonedLoginTest, AnInterruptToTorvictlAloneEndsBoth)
{
    const auto running = startAbandonedLogin();

    running->signal(SIGINT);

    EXPECT_TRUE(exitedWith(130, running->waitForEnd()));
    EXPECT_TRUE(isNoGCloudLeft());
}

TEST_F(GCloudAbandonedLoginTest, NoGCloudIsLeftWhenTorvictlIsTerminated)
{
    const auto running = startAbandonedLogin();

    running->signal(SIGTERM);

    EXPECT_NE(running->waitForEnd().exitCode, 0);
    EXPECT_TRUE(isNoGCloudLeft());
}

TEST_F(GCloudAbandonedLoginTest, NoGCloudIsLeftWhenItsTerminalIsClosed)
{
    const auto running = startAbandonedLogin();

    running->signal(SIGHUP);

    EXPECT_NE(running->waitForEnd().exitCode, 0);
    EXPECT_TRUE(isNoGCloudLeft());
}

TEST_F(GCloudAbandonedLoginTest, NoGCloudIsLeftWhenTorvictlIsKilled)
{
    const auto running = startAbandonedLogin();

    running->signal(SIGKILL);

    EXPECT_TRUE(running->waitForEnd().wasEndedBySignal);
    EXPECT_TRUE(isNoGCloudLeft());
}

} // namespace torvi
