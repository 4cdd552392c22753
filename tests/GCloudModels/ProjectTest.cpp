// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudModels/Project.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

TEST(ProjectTest, PinnedAndUnpinnedCopiesHashTheSameAndAreNotEqual)
{
    const Project unpinned{ u"p"_s, u"P"_s, u"1"_s, false, std::nullopt };
    Project pinned = unpinned;
    pinned.isPinned = true;

    EXPECT_EQ(qHash(pinned), qHash(unpinned));
    EXPECT_NE(pinned, unpinned);
}

TEST(ProjectTest, EqualityComparesAllFiveFields)
{
    const Project project{ u"p"_s, u"P"_s, u"1"_s, false, std::nullopt };
    Project otherName = project;
    otherName.name = u"Q"_s;
    Project otherNumber = project;
    otherNumber.projectNumber = std::nullopt;
    Project otherUse = project;
    otherUse.lastUsed = QDateTime::fromSecsSinceEpoch(1);

    EXPECT_EQ(project, Project(project));
    for (const Project &other : { otherName, otherNumber, otherUse }) {
        EXPECT_NE(project, other);
        EXPECT_EQ(qHash(project), qHash(other));
    }
}

} // namespace torvi
