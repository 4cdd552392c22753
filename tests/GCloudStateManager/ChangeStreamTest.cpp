// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/ChangeStream.h"

#include <QCoreApplication>
#include <qcoro/qcorotask.h>

#include <gtest/gtest.h>

#include <thread>

namespace torvi {

namespace {

struct Consumed
{
    int elements = 0;
    bool ended = false;
};

QCoro::Task<> consume(ChangeStream stream, std::shared_ptr<Consumed> consumed)
{
    for (;;) {
        const bool more = co_await stream.next(); // not in the condition: see ChangeStream::next()
        if (!more) {
            break;
        }
        ++consumed->elements;
    }
    consumed->ended = true;
}

} // namespace

class ChangeStreamTest : public testing::Test
{
protected:
    ChangeStream stream;
    std::shared_ptr<Consumed> consumed = std::make_shared<Consumed>();

    ~ChangeStreamTest() override
    {
        stream.cancel(); // or the suspended consumer would keep the stream for ever
        QCoreApplication::processEvents();
    }
};

TEST_F(ChangeStreamTest, DeliversWhatWasBufferedBeforeTheConsumerCame)
{
    stream.yield();
    stream.yield();

    consume(stream, consumed);

    EXPECT_EQ(consumed->elements, 2);
    EXPECT_FALSE(consumed->ended);
}

TEST_F(ChangeStreamTest, ResumesTheConsumerFromTheEventLoopNotInsideYield)
{
    consume(stream, consumed);

    stream.yield();
    EXPECT_EQ(consumed->elements, 0);
    QCoreApplication::processEvents();

    EXPECT_EQ(consumed->elements, 1);
}

TEST_F(ChangeStreamTest, GoesOnAfterTwoElementsThatCameBeforeTheConsumerResumed)
{
    consume(stream, consumed);
    stream.yield();
    stream.yield();

    QCoreApplication::processEvents();

    EXPECT_EQ(consumed->elements, 2);
    EXPECT_FALSE(consumed->ended);
}

TEST_F(ChangeStreamTest, DeliversBufferedElementsAfterFinish)
{
    stream.yield();
    stream.finish();

    consume(stream, consumed);

    EXPECT_EQ(consumed->elements, 1);
    EXPECT_TRUE(consumed->ended);
}

TEST_F(ChangeStreamTest, FinishEndsAWaitingConsumer)
{
    consume(stream, consumed);

    stream.finish();
    QCoreApplication::processEvents();

    EXPECT_TRUE(consumed->ended);
}

TEST_F(ChangeStreamTest, IgnoresElementsAfterFinish)
{
    stream.finish();
    stream.yield();

    consume(stream, consumed);

    EXPECT_EQ(consumed->elements, 0);
    EXPECT_TRUE(consumed->ended);
}

TEST_F(ChangeStreamTest, CancelDropsWhatIsBuffered)
{
    stream.yield();
    stream.cancel();

    consume(stream, consumed);

    EXPECT_EQ(consumed->elements, 0);
    EXPECT_TRUE(consumed->ended);
}

TEST_F(ChangeStreamTest, CancelCallsBackOnce)
{
    int calls = 0;
    stream.onCancel([&calls] { ++calls; });

    stream.cancel();
    stream.cancel();

    EXPECT_EQ(calls, 1);
}

TEST_F(ChangeStreamTest, ACallbackThatComesAfterTheCancelRunsAtOnce)
{
    bool called = false;
    stream.cancel();

    stream.onCancel([&called] { called = true; });

    EXPECT_TRUE(called);
}

TEST_F(ChangeStreamTest, TakesElementsFromAnotherThread)
{
    consume(stream, consumed);

    std::thread producer([stream = stream]() mutable {
        for (int i = 0; i < 1000; ++i) {
            stream.yield();
        }
        stream.finish();
    });
    while (!consumed->ended) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    producer.join();

    EXPECT_EQ(consumed->elements, 1000);
}

} // namespace torvi
