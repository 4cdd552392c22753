// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/SingleInstance.h"

#include "Torvi/Linux/ActivationToken.h"
#include "tests/support/PrivateBus.h"
#include "tests/support/WaitUntil.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QSemaphore>

#include <gmock/gmock.h>

#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace torvi {

using CommandLine::Request;
using Outcome = SingleInstance::Outcome;

/// Each start has a connection of its own, as another process would have.
class SingleInstanceTest : public testing::Test
{
protected:
    PrivateBus bus;
    QList<Request> carriedOut;

    Outcome start(SingleInstance &instance, Request request = Request::start)
    {
        return instance.claimOrPassOn(
            request, [this](Request asked) { carriedOut.append(asked); }, 10s);
    }

    /// A later start, in a thread of its own: it blocks, and the first one answers in this thread.
    Outcome startLater(Request request)
    {
        const QDBusConnection connection = bus.connect();
        std::optional<Outcome> outcome;
        QSemaphore done;
        std::thread thread([&] {
            SingleInstance later(connection);
            outcome = later.claimOrPassOn(
                request, [](Request) { ADD_FAILURE() << "a later start became the first"; }, 20s);
            done.release();
        });
        EXPECT_TRUE(waitUntil([&done] { return done.tryAcquire(); }));
        thread.join();
        return outcome.value();
    }

    QDBusMessage call(const QString &method, const QVariantList &arguments)
    {
        QDBusMessage message
            = QDBusMessage::createMethodCall(SingleInstance::name(), u"/com/veldra/Torvi"_s,
                                             u"org.freedesktop.Application"_s, method);
        message.setArguments(arguments);
        return bus.connect().call(message, QDBus::BlockWithGui);
    }

    bool isCarriedOut(const QList<Request> &requests)
    {
        return waitUntil([this, &requests] { return carriedOut == requests; });
    }
};

TEST_F(SingleInstanceTest, TheFirstStartOwnsTheName)
{
    SingleInstance first(bus.connect());

    EXPECT_EQ(start(first), Outcome::isFirst);
    EXPECT_TRUE(carriedOut.isEmpty());
}

TEST_F(SingleInstanceTest, LaterStartsAreCarriedOutByTheFirst)
{
    SingleInstance first(bus.connect());
    ASSERT_EQ(start(first), Outcome::isFirst);

    for (const Request request :
         { Request::start, Request::toggle, Request::manager, Request::quit }) {
        carriedOut.clear();
        EXPECT_EQ(startLater(request), Outcome::passedOn);
        EXPECT_TRUE(isCarriedOut({ request }));
    }
}

TEST_F(SingleInstanceTest, ANameThatWasGivenUpIsFree)
{
    {
        SingleInstance first(bus.connect());
        ASSERT_EQ(start(first), Outcome::isFirst);
    }

    SingleInstance second(bus.connect());

    EXPECT_EQ(start(second), Outcome::isFirst);
}

TEST_F(SingleInstanceTest, AnOwnerThatGoesWithoutAnAnswerIsSucceeded)
{
    // It takes the call but never gets to answering, as a program does that is about to end.
    struct Unanswering final : QDBusVirtualObject
    {
        QSemaphore asked;
        [[nodiscard]] QString introspect(const QString &) const override
        {
            return {};
        }
        bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
        {
            message.setDelayedReply(true);
            asked.release();
            return true;
        }
    } unanswering;
    QString dying;
    {
        QDBusConnection connection = bus.connect();
        dying = connection.name();
        ASSERT_TRUE(connection.registerService(SingleInstance::name()));
        connection.registerVirtualObject(u"/com/veldra/Torvi"_s, &unanswering);
    }
    const QDBusConnection connection = bus.connect();
    std::optional<Outcome> outcome;
    QSemaphore done;
    std::thread thread([&] {
        SingleInstance second(connection);
        outcome = second.claimOrPassOn(
            Request::toggle, [](Request) {}, 20s);
        done.release();
    });

    EXPECT_TRUE(waitUntil([&unanswering] { return unanswering.asked.tryAcquire(); }));
    bus.disconnect(dying);

    EXPECT_TRUE(waitUntil([&done] { return done.tryAcquire(); }));
    thread.join();
    EXPECT_EQ(outcome, Outcome::isFirst);
}

TEST_F(SingleInstanceTest, AnOwnerThatDoesNotAnswerIsReported)
{
    SingleInstance first(bus.connect());
    ASSERT_EQ(start(first), Outcome::isFirst); // its event loop does not run now
    SingleInstance second(bus.connect());

    EXPECT_EQ(second.claimOrPassOn(
                  Request::toggle, [](Request) {}, 50ms),
              Outcome::noAnswer);
}

TEST_F(SingleInstanceTest, AMissingBusIsReported)
{
    SingleInstance instance(QDBusConnection(u"no such connection"_s));

    EXPECT_EQ(start(instance), Outcome::noBus);
    EXPECT_EQ(instance.passOn(Request::quit), Outcome::noBus);
}

TEST_F(SingleInstanceTest, PassingOnNeverOwnsTheName)
{
    SingleInstance quitting(bus.connect());

    EXPECT_EQ(quitting.passOn(Request::quit), Outcome::isFirst);

    SingleInstance first(bus.connect());
    EXPECT_EQ(start(first), Outcome::isFirst);
}

TEST_F(SingleInstanceTest, LaunchersOpenThePopover)
{
    SingleInstance first(bus.connect());
    ASSERT_EQ(start(first), Outcome::isFirst);

    EXPECT_EQ(call(u"Activate"_s, { QVariantMap() }).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(call(u"Open"_s, { QStringList{ u"file:///x"_s }, QVariantMap() }).type(),
              QDBusMessage::ReplyMessage);

    EXPECT_TRUE(isCarriedOut({ Request::start, Request::start }));
}

TEST_F(SingleInstanceTest, AnUnknownActionIsAnError)
{
    SingleInstance first(bus.connect());
    ASSERT_EQ(start(first), Outcome::isFirst);

    const QDBusMessage reply
        = call(u"ActivateAction"_s, { u"frobnicate"_s, QVariantList(), QVariantMap() });

    EXPECT_EQ(reply.type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(reply.errorName(), u"org.freedesktop.DBus.Error.InvalidArgs"_s);
    EXPECT_THAT(reply.errorMessage().toStdString(), testing::HasSubstr("frobnicate"));
    QCoreApplication::processEvents();
    EXPECT_TRUE(carriedOut.isEmpty());
}

TEST_F(SingleInstanceTest, TheActivationTokenOfALaterStartComesAlong)
{
    SingleInstance first(bus.connect());
    ASSERT_EQ(start(first), Outcome::isFirst);
    qputenv("XDG_ACTIVATION_TOKEN", "of the launcher");

    EXPECT_EQ(startLater(Request::toggle), Outcome::passedOn);
    qunsetenv("XDG_ACTIVATION_TOKEN");

    EXPECT_TRUE(isCarriedOut({ Request::toggle }));
    QString seen;
    ActivationToken::use([&seen] { seen = qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); });
    EXPECT_EQ(seen, u"of the launcher"_s);
}

} // namespace torvi
