// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/PathSteps.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace torvi {

namespace {

std::vector<std::string> walk(std::string_view path)
{
    std::vector<std::string> paths;
    for (PathSteps steps(path); steps.next();) {
        EXPECT_EQ(steps.path(), joinedPath(steps.directory(), steps.name()));
        paths.push_back(steps.path());
    }
    return paths;
}

} // namespace

TEST(PathStepsTest, NamesEachEntryFromTheRootOn)
{
    EXPECT_THAT(walk("/a/b/c"), ElementsAre("/a", "/a/b", "/a/b/c"));
}

TEST(PathStepsTest, TakesNoStepToTheRoot)
{
    EXPECT_THAT(walk("/"), IsEmpty());
}

TEST(PathStepsTest, OverlooksWhatIsUntidy)
{
    EXPECT_THAT(walk("//a/.//b/./"), ElementsAre("/a", "/a/b"));
}

TEST(PathStepsTest, GoesUpAtTwoDots)
{
    EXPECT_THAT(walk("/a/b/../c"), ElementsAre("/a", "/a/b", "/a/c"));
    EXPECT_THAT(walk("/a/../../b"), ElementsAre("/a", "/b"));
}

TEST(PathStepsTest, EndsWhereTwoDotsLead)
{
    PathSteps steps("/a/b/..");
    while (steps.next()) { }

    EXPECT_EQ(steps.path(), "/a");
}

TEST(PathStepsTest, KnowsTheLastStep)
{
    PathSteps steps("/a/b");

    EXPECT_TRUE(steps.next());
    EXPECT_FALSE(steps.isLast());
    EXPECT_TRUE(steps.next());
    EXPECT_TRUE(steps.isLast());
    EXPECT_FALSE(steps.next());
}

TEST(PathStepsTest, LeadsOnThroughARelativeLinkFromItsDirectory)
{
    PathSteps steps("/a/link/c");
    EXPECT_TRUE(steps.next());
    EXPECT_TRUE(steps.next());

    EXPECT_TRUE(steps.followLink("../b"));

    EXPECT_TRUE(steps.next());
    EXPECT_EQ(steps.path(), "/b");
    EXPECT_TRUE(steps.next());
    EXPECT_EQ(steps.path(), "/b/c");
    EXPECT_FALSE(steps.next());
}

TEST(PathStepsTest, LeadsOnThroughAnAbsoluteLinkFromTheRoot)
{
    PathSteps steps("/a/link");
    EXPECT_TRUE(steps.next());
    EXPECT_TRUE(steps.next());

    EXPECT_TRUE(steps.followLink("/x/y"));

    EXPECT_TRUE(steps.next());
    EXPECT_EQ(steps.path(), "/x");
    EXPECT_TRUE(steps.next());
    EXPECT_EQ(steps.path(), "/x/y");
}

TEST(PathStepsTest, GivesUpOnALoopOfLinks)
{
    PathSteps steps("/link");
    int links = 0;
    while (steps.next() && steps.followLink("link")) {
        ++links;
    }

    EXPECT_EQ(links, 40);
}

} // namespace torvi
