// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/VisibleProjects.h"

#include "tests/VeldraUI/AuthStateFixture.h"
#include "tests/VeldraUI/RowMirror.h"

#include <QSignalSpy>

#include <random>

using namespace Qt::StringLiterals;

namespace torvi {

class VisibleProjectsTest : public AuthStateFixture
{
protected:
    ProjectListModel projects;
    VisibleProjects visible;

    void SetUp() override
    {
        projects.setStateManager(state.get());
        visible.setSource(&projects);
        // Rows of 20 with 5 between them: one each 25.
        visible.setProperty("rowHeight", 20.0);
        visible.setProperty("activeRowHeight", 23.0);
        visible.setProperty("titleHeight", 10.0);
        visible.setProperty("spacing", 5.0);
        visible.setProperty("viewportHeight", 100.0);
    }

    void listNumbered(int count)
    {
        QStringList ids;
        for (int number = 0; number < count; ++number) {
            ids.append(u"p%1"_s.arg(number));
        }
        list(ids);
    }

    void scrollTo(double y)
    {
        visible.setProperty("viewportY", y);
    }

    QList<int> rows() const
    {
        QList<int> numbers;
        for (int item = 0; item < visible.rowCount(); ++item) {
            numbers.append(visible.index(item).data(VisibleProjects::RowRole).toInt());
        }
        return numbers;
    }

    double yOf(int row) const
    {
        for (int item = 0; item < visible.rowCount(); ++item) {
            const QModelIndex index = visible.index(item);
            if (index.data(VisibleProjects::RowRole).toInt() == row) {
                return index.data(VisibleProjects::RowYRole).toDouble();
            }
        }
        ADD_FAILURE() << "row " << row << " has no item";
        return -1;
    }

    static QList<int> range(int first, int last)
    {
        QList<int> numbers;
        for (int number = first; number <= last; ++number) {
            numbers.append(number);
        }
        return numbers;
    }
};

TEST_F(VisibleProjectsTest, ShortListsHaveAllTheirItems)
{
    listNumbered(3);

    EXPECT_EQ(rows(), range(0, 2));
    EXPECT_EQ(visible.height(), 70);
    EXPECT_EQ(visible.index(2).data(ProjectListModel::ProjectIdRole), u"p2"_s);
    EXPECT_EQ(visible.index(2).data(ProjectListModel::PositionRole), 3);
}

TEST_F(VisibleProjectsTest, LongListsHaveItemsForWhatIsOnScreen)
{
    listNumbered(10'000);
    EXPECT_EQ(visible.height(), 10'000 * 25 - 5);
    EXPECT_EQ(rows(), range(0, 5));

    visible.setCurrentRow(5'000);
    scrollTo(5'000 * 25 + 24);
    EXPECT_EQ(rows(), range(5'000, 5'005)) << "a row and its spacing belong together";
    EXPECT_EQ(yOf(5'003), 5'003 * 25);
}

TEST_F(VisibleProjectsTest, TheNumberOfItemsIsTheSameEverywhere)
{
    listNumbered(10'000);
    visible.setCurrentRow(9'999);

    for (const double y : { -300.0, 0.0, 1.0, 24.0, 100'000.5, 249'000.0, 249'895.0, 400'000.0 }) {
        scrollTo(y);
        EXPECT_GE(visible.rowCount(), 6) << y;
        EXPECT_LE(visible.rowCount(), 7) << y << ": the viewport's and the keyboard's place";
        EXPECT_TRUE(std::ranges::is_sorted(rows())) << y;
    }
}

TEST_F(VisibleProjectsTest, AViewportThatBeginsAboveTheRowsHasItemsForItsRest)
{
    visible.setProperty("viewportHeight", 0.0);
    scrollTo(-50);
    visible.setProperty("viewportHeight", 100.0);

    listNumbered(10'000);
    EXPECT_EQ(rows(), range(0, 3));

    scrollTo(0);
    EXPECT_EQ(rows(), range(0, 5));
    scrollTo(-50);
    EXPECT_EQ(rows(), range(0, 5)) << "once made they are kept";
}

TEST_F(VisibleProjectsTest, ALowerViewportHasFewerItems)
{
    listNumbered(10'000);

    visible.setProperty("viewportHeight", 50.0);

    EXPECT_EQ(rows(), range(0, 3));
}

TEST_F(VisibleProjectsTest, WithoutAViewportOrHeightsThereAreNoItems)
{
    listNumbered(3);

    visible.setProperty("viewportHeight", 0.0);
    EXPECT_EQ(rows(), QList<int>());
    visible.setProperty("viewportHeight", 100.0);
    visible.setProperty("rowHeight", 0.0);
    EXPECT_EQ(rows(), QList<int>());
}

TEST_F(VisibleProjectsTest, TitlesAndTheActiveRowTakeTheirRoom)
{
    favorites->ids = { u"p3"_s };
    recents->ids = { u"p1"_s };
    listNumbered(5); // p3, [Recently Used] p1, [All Projects] p0, p2, p4
    activate(u"p0"_s);

    EXPECT_EQ(yOf(0), 0);
    EXPECT_EQ(yOf(1), 25);
    EXPECT_EQ(yOf(2), 65);
    EXPECT_EQ(yOf(3), 65 + 15 + 23 + 5);
    EXPECT_EQ(visible.height(), 65 + 15 + 23 + 5 + 25 + 20);

    const QSignalSpy heights(&visible, &VisibleProjects::heightChanged);
    activate(std::nullopt);
    EXPECT_EQ(yOf(3), 105);
    EXPECT_EQ(heights.count(), 1);
}

TEST_F(VisibleProjectsTest, ScrollingGivesItemsOtherRowsInsteadOfMakingNewOnes)
{
    listNumbered(100);
    RowMirror mirror(visible, ProjectListModel::ProjectIdRole);

    scrollTo(25);
    EXPECT_EQ(mirror.messages, QStringList{ u"insert 6"_s }) << "row 0 is the keyboard's place";
    mirror.messages.clear();
    visible.setCurrentRow(99);
    for (int y = 50; y < 2'000; y += 10) {
        scrollTo(y);
    }

    EXPECT_EQ(mirror.rows, mirror.modelRows());
    for (const QString &message : mirror.messages) {
        EXPECT_TRUE(message.startsWith(u"move"_s) || message.startsWith(u"change"_s))
            << message.toStdString();
    }
}

TEST_F(VisibleProjectsTest, AFarJumpIsToldAsChangesAlone)
{
    listNumbered(1'000);
    visible.setCurrentRow(999);
    RowMirror mirror(visible, ProjectListModel::ProjectIdRole);

    scrollTo(10'000);

    EXPECT_EQ(mirror.messages, QStringList{ u"change 0-5"_s });
    EXPECT_EQ(mirror.rows, mirror.modelRows());
}

TEST_F(VisibleProjectsTest, ARowThatTravelsOnScreenKeepsItsItem)
{
    listNumbered(100);
    RowMirror mirror(visible, ProjectListModel::ProjectIdRole);

    state->togglePin(u"p3"_s);

    EXPECT_EQ(mirror.messages.first(), u"move 3 to 0"_s);
    EXPECT_EQ(mirror.rows, mirror.modelRows());
    EXPECT_EQ(mirror.rows.first(), u"p3"_s);
}

TEST_F(VisibleProjectsTest, ARowThatTravelsAwayLeavesTheViewportWhereItIs)
{
    favorites->ids = { u"p0"_s };
    listNumbered(100);
    scrollTo(1'000);
    const QList<int> before = rows();

    state->togglePin(u"p42"_s);

    EXPECT_EQ(rows(), before);
    EXPECT_EQ(visible.index(2).data(VisibleProjects::RowRole), 40);
    EXPECT_EQ(visible.index(2).data(ProjectListModel::ProjectIdRole), u"p39"_s);
}

TEST_F(VisibleProjectsTest, NewDataReachTheItems)
{
    listNumbered(3);
    RowMirror mirror(visible, ProjectListModel::IsActiveRole);

    activate(u"p1"_s);

    EXPECT_EQ(mirror.rows, (QStringList{ u"false"_s, u"true"_s, u"false"_s }));
}

TEST_F(VisibleProjectsTest, TheKeyboardStartsAtTheFirstRow)
{
    EXPECT_EQ(visible.currentRow(), -1);
    const QSignalSpy changes(&visible, &VisibleProjects::currentRowChanged);

    listNumbered(3);

    EXPECT_EQ(visible.currentRow(), 0);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(VisibleProjectsTest, TheKeyboardsPlaceIsBoundToTheRows)
{
    listNumbered(3);

    visible.setCurrentRow(7);
    EXPECT_EQ(visible.currentRow(), 2);
    visible.setCurrentRow(-1);
    EXPECT_EQ(visible.currentRow(), 0);
}

TEST_F(VisibleProjectsTest, TheKeyboardsPlaceHasAnItemAlsoOffScreen)
{
    listNumbered(1'000);
    visible.setCurrentRow(3);

    scrollTo(10'000);
    EXPECT_EQ(rows(), QList<int>{ 3 } + range(400, 405));
    scrollTo(0);
    visible.setCurrentRow(700);
    EXPECT_EQ(rows(), range(0, 5) + QList<int>{ 700 });
}

TEST_F(VisibleProjectsTest, TheKeyboardsPlaceStaysWithItsRow)
{
    list({ u"a"_s, u"b"_s, u"c"_s, u"d"_s });
    visible.setCurrentRow(2);

    state->togglePin(u"d"_s); // d a b c
    EXPECT_EQ(visible.currentRow(), 3);
    state->togglePin(u"d"_s); // a b c d
    EXPECT_EQ(visible.currentRow(), 2);
    list({ u"b"_s, u"c"_s, u"d"_s });
    EXPECT_EQ(visible.currentRow(), 1);
    list({ u"x"_s, u"y"_s, u"b"_s, u"c"_s, u"d"_s });
    EXPECT_EQ(visible.currentRow(), 3);
}

TEST_F(VisibleProjectsTest, TheKeyboardsPlaceStaysWhereItIsWhenItsRowTravels)
{
    listNumbered(10);
    visible.setCurrentRow(6);

    state->togglePin(u"p6"_s);
    EXPECT_EQ(visible.currentRow(), 6);
    state->togglePin(u"p5"_s);
    EXPECT_EQ(visible.currentRow(), 6);
}

TEST_F(VisibleProjectsTest, TheKeyboardsPlaceStaysWhereItIsWhenItsRowGoes)
{
    list({ u"a"_s, u"b"_s, u"c"_s });
    visible.setCurrentRow(1);

    list({ u"a"_s, u"c"_s });
    EXPECT_EQ(visible.currentRow(), 1);
    list({ u"a"_s });
    EXPECT_EQ(visible.currentRow(), 0);
    list({});
    EXPECT_EQ(visible.currentRow(), -1);
}

TEST_F(VisibleProjectsTest, TheKeyboardsRowIsFoundAgainInAListThatChangedALot)
{
    listNumbered(400);
    visible.setCurrentRow(100);

    QStringList odd;
    for (int number = 0; number < 400; number += 2) {
        odd.append(u"p%1"_s.arg(number));
    }
    list(odd);

    EXPECT_EQ(visible.currentRow(), 50);
}

TEST_F(VisibleProjectsTest, WithoutASourceThereIsNothing)
{
    listNumbered(3);

    visible.setSource(nullptr);

    EXPECT_EQ(visible.rowCount(), 0);
    EXPECT_EQ(visible.height(), 0);
    EXPECT_EQ(visible.currentRow(), -1);
}

TEST_F(VisibleProjectsTest, WhateverHappensEachItemShowsItsRow)
{
    std::mt19937 random(11);
    RowMirror mirror(visible, ProjectListModel::ProjectIdRole);
    QStringList pool;
    for (int number = 0; number < 200; ++number) {
        pool.append(u"p%1"_s.arg(number));
    }
    const auto any = [&random](int count) {
        return static_cast<int>(random() % static_cast<unsigned>(count));
    };
    for (int step = 0; step < 2'000; ++step) {
        switch (any(7)) {
        case 0: {
            QStringList ids = pool;
            std::ranges::shuffle(ids, random);
            list(ids.first(any(201)));
            break;
        }
        case 1:
            state->togglePin(pool[any(200)]);
            break;
        case 2:
            recents->recordUsage(pool[any(200)]);
            break;
        case 3:
            projects.setFilterText(any(2) == 0 ? QString() : QString::number(any(30)));
            break;
        case 4:
            activate(pool[any(200)]);
            break;
        case 5:
            scrollTo(any(6'000) - 300);
            break;
        case 6:
            visible.setCurrentRow(any(200));
            break;
        }
        ASSERT_EQ(mirror.rows, mirror.modelRows()) << "step " << step;
        ASSERT_TRUE(std::ranges::is_sorted(rows())) << "step " << step;
        for (int item = 0; item < visible.rowCount(); ++item) {
            const int row = visible.index(item).data(VisibleProjects::RowRole).toInt();
            ASSERT_EQ(visible.index(item).data(ProjectListModel::ProjectIdRole),
                      projects.index(row).data(ProjectListModel::ProjectIdRole));
        }
        ASSERT_EQ(visible.currentRow() == -1, projects.count() == 0);
    }
}

} // namespace torvi
