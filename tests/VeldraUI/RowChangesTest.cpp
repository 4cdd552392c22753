// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/RowChanges.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <ostream>
#include <random>

namespace torvi {

using Kind = RowChange::Kind;

void PrintTo(const RowChange &change, std::ostream *out)
{
    *out << (change.kind == Kind::remove     ? "remove "
                 : change.kind == Kind::move ? "move "
                                             : "insert ")
         << change.first << " x" << change.count << " to " << change.to;
}

namespace {

std::vector<int> applied(const std::vector<RowChange> &changes, std::vector<int> list,
                         const std::vector<int> &next)
{
    for (const RowChange &change : changes) {
        const auto first = list.begin() + change.first;
        switch (change.kind) {
        case Kind::remove:
            list.erase(first, first + change.count);
            break;
        case Kind::move: {
            const int value = *first;
            list.erase(first);
            list.insert(list.begin() + change.to, value);
            break;
        }
        case Kind::insert: {
            const auto source = next.begin() + change.first;
            list.insert(first, source, source + change.count);
            break;
        }
        }
    }
    return list;
}

/// The changes between two lists of distinct numbers.
std::vector<RowChange> between(const std::vector<int> &list, const std::vector<int> &next)
{
    std::vector<int> places;
    for (const int value : list) {
        const auto place = std::ranges::find(next, value);
        places.push_back(place == next.end() ? kGone : static_cast<int>(place - next.begin()));
    }
    return rowChanges(places, static_cast<int>(next.size()));
}

std::vector<int> numbers(int first, int count)
{
    std::vector<int> list(static_cast<std::size_t>(count));
    std::iota(list.begin(), list.end(), first);
    return list;
}

} // namespace

TEST(RowChangesTest, EqualListsNeedNone)
{
    EXPECT_TRUE(between({}, {}).empty());
    EXPECT_TRUE(between({ 1, 2, 3 }, { 1, 2, 3 }).empty());
}

TEST(RowChangesTest, NeighboursGoAndComeAsOneRange)
{
    EXPECT_EQ(between({ 1, 2, 3, 4, 5, 6 }, { 1, 4, 7, 8, 9 }),
              (std::vector<RowChange>{ { Kind::remove, 4, 2, 0 },
                                       { Kind::remove, 1, 2, 0 },
                                       { Kind::insert, 2, 3, 0 } }));
}

TEST(RowChangesTest, ARowThatTravelsIsOneMoveEitherWay)
{
    EXPECT_EQ(between({ 1, 2, 3, 4, 5 }, { 4, 1, 2, 3, 5 }),
              (std::vector<RowChange>{ { Kind::move, 3, 1, 0 } }));
    EXPECT_EQ(between({ 1, 2, 3, 4, 5 }, { 2, 3, 4, 1, 5 }),
              (std::vector<RowChange>{ { Kind::move, 0, 1, 3 } }));
}

TEST(RowChangesTest, OneRowTravelsThroughTenThousandInOneMove)
{
    const std::vector<int> list = numbers(0, 10'000);
    std::vector<int> next = list;
    std::rotate(next.begin(), next.begin() + 7'000, next.begin() + 7'001);

    EXPECT_EQ(between(list, next), (std::vector<RowChange>{ { Kind::move, 7'000, 1, 0 } }));
}

TEST(RowChangesTest, TooManyStepsBecomeOneRemovalAndOneInsertion)
{
    std::vector<int> list = numbers(0, 400);
    std::vector<int> next;
    std::ranges::copy_if(list, std::back_inserter(next),
                         [](int value) { return value < 10 || value % 2 == 0 || value > 390; });

    EXPECT_EQ(
        between(list, next),
        (std::vector<RowChange>{ { Kind::remove, 11, 379, 0 }, { Kind::insert, 11, 189, 0 } }));
}

TEST(RowChangesTest, AsManyStepsAsAllowedAreToldOneByOne)
{
    const std::vector<int> list = numbers(0, 2 * kMostRowChanges);
    std::vector<int> next;
    std::ranges::copy_if(list, std::back_inserter(next), [](int value) { return value % 2 == 0; });
    EXPECT_EQ(between(list, next).size(), std::size_t{ kMostRowChanges });

    std::vector<int> longer = list;
    longer.push_back(1'001);
    longer.push_back(1'002);
    next.push_back(1'001);
    EXPECT_LE(between(longer, next).size(), std::size_t{ 2 });
}

TEST(RowChangesTest, WholesaleChangeFromAndToNothing)
{
    EXPECT_EQ(between({}, { 1, 2 }), (std::vector<RowChange>{ { Kind::insert, 0, 2, 0 } }));
    EXPECT_EQ(between({ 1, 2 }, {}), (std::vector<RowChange>{ { Kind::remove, 0, 2, 0 } }));
}

TEST(RowChangesTest, ReversingManyRowsIsWholesaleAndRight)
{
    const std::vector<int> list = numbers(0, 1'000);
    const std::vector<int> next(list.rbegin(), list.rend());

    const std::vector<RowChange> changes = between(list, next);

    EXPECT_LE(changes.size(), std::size_t{ 2 });
    EXPECT_EQ(applied(changes, list, next), next);
}

TEST(RowChangesTest, AnyListBecomesAnyOther)
{
    std::mt19937 random(20260101);
    for (int run = 0; run < 5'000; ++run) {
        const int pool = 1 + static_cast<int>(random() % 200);
        const auto some = [&] {
            std::vector<int> list = numbers(0, pool);
            std::ranges::shuffle(list, random);
            list.resize(random() % static_cast<unsigned>(pool + 1));
            if (random() % 2 == 0) {
                std::ranges::sort(list); // few moves, many ranges
            }
            return list;
        };
        const std::vector<int> list = some();
        const std::vector<int> next = some();

        const std::vector<RowChange> changes = between(list, next);

        ASSERT_EQ(applied(changes, list, next), next) << "run " << run;
        ASSERT_LE(changes.size(), std::size_t{ kMostRowChanges }) << "run " << run;
    }
}

} // namespace torvi
