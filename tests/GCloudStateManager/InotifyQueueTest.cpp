// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/InotifyQueue.h"

#include "tests/support/NoDescriptors.h"
#include "tests/support/TemporaryTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::IsEmpty;

namespace torvi {

class InotifyQueueTest : public testing::Test
{
protected:
    TemporaryTree tree;
    InotifyQueue queue;
};

TEST_F(InotifyQueueTest, HasNoEventsAtFirst)
{
    EXPECT_TRUE(queue.add(tree.path(), IN_CREATE));

    EXPECT_THAT(queue.takeEvents(), IsEmpty());
}

TEST_F(InotifyQueueTest, HandsOutEventsOnceInTheirOrder)
{
    const int watch = queue.add(tree.path(), IN_CREATE | IN_DELETE).value();
    tree.write("first");
    tree.remove("first");
    tree.makeDirectory("caf\xe9");

    const std::vector<InotifyEvent> events = queue.takeEvents();

    ASSERT_EQ(events.size(), 3U);
    EXPECT_EQ(events[0].watch, watch);
    EXPECT_EQ(events[0].mask, std::uint32_t{ IN_CREATE });
    EXPECT_EQ(events[0].name, "first");
    EXPECT_EQ(events[1].mask, std::uint32_t{ IN_DELETE });
    EXPECT_EQ(events[1].name, "first");
    EXPECT_EQ(events[2].mask, std::uint32_t{ IN_CREATE | IN_ISDIR });
    EXPECT_EQ(events[2].name, "caf\xe9");
    EXPECT_THAT(queue.takeEvents(), IsEmpty());
}

TEST_F(InotifyQueueTest, LeavesTheNameOfTheWatchedFileItselfEmpty)
{
    tree.write("file");
    EXPECT_TRUE(queue.add(tree.path("file"), IN_MODIFY));
    tree.append("file");

    const std::vector<InotifyEvent> events = queue.takeEvents();

    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].name, "");
}

TEST_F(InotifyQueueTest, AddsNoWatchOnAMissingFile)
{
    EXPECT_FALSE(queue.add(tree.path("missing"), IN_CREATE));
}

TEST_F(InotifyQueueTest, ReportsNoMoreForARemovedWatch)
{
    const int watch = queue.add(tree.path(), IN_CREATE).value();
    queue.remove(watch);
    tree.write("file");

    const std::vector<InotifyEvent> events = queue.takeEvents();

    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].mask, std::uint32_t{ IN_IGNORED });
}

TEST_F(InotifyQueueTest, NumbersANewWatchAfresh)
{
    const int old = queue.add(tree.path(), IN_CREATE).value();
    queue.remove(old);

    EXPECT_NE(queue.add(tree.path(), IN_CREATE).value(), old);
}

TEST(ClosedInotifyQueueTest, DoesNothing)
{
    const NoDescriptors noDescriptors;

    InotifyQueue queue;

    EXPECT_FALSE(queue.isOpen());
    EXPECT_FALSE(queue.add("/", IN_CREATE));
    EXPECT_THAT(queue.takeEvents(), IsEmpty());
}

} // namespace torvi
