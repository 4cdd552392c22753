// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/ProjectListModel.h"

#include "tests/VeldraUI/AuthStateFixture.h"
#include "tests/VeldraUI/RowMirror.h"

#include <QSignalSpy>

#include <random>

using namespace Qt::StringLiterals;

namespace torvi {

class ProjectListModelTest : public AuthStateFixture
{
protected:
    ProjectListModel model;
    std::unique_ptr<RowMirror> mirror;

    void SetUp() override
    {
        model.setStateManager(state.get());
        mirror = std::make_unique<RowMirror>(model, ProjectListModel::ProjectIdRole);
    }

    /// One text a row, as in "[Recently Used] b*": title, id, and * for the active one.
    QStringList shown() const
    {
        QStringList rows;
        for (int row = 0; row < model.count(); ++row) {
            const QModelIndex index = model.index(row);
            const QString title = index.data(ProjectListModel::GroupTitleRole).toString();
            rows.append((title.isEmpty() ? QString() : u"["_s + title + u"] "_s)
                        + index.data(ProjectListModel::ProjectIdRole).toString()
                        + (index.data(ProjectListModel::IsActiveRole).toBool() ? u"*"_s : u""_s));
        }
        return rows;
    }
};

TEST_F(ProjectListModelTest, WithNothingPinnedOrRecentThePlainListHasNoTitle)
{
    list({ u"b"_s, u"a"_s });

    EXPECT_EQ(shown(), (QStringList{ u"b"_s, u"a"_s }));
}

TEST_F(ProjectListModelTest, GroupsPinnedThenRecentNewestFirstThenOthers)
{
    favorites->ids = { u"e"_s, u"b"_s };
    recents->ids = { u"d"_s, u"a"_s, u"unknown"_s };

    list({ u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s });

    EXPECT_EQ(shown(),
              (QStringList{ u"b"_s, u"e"_s, u"[Recently Used] d"_s, u"a"_s, u"[All Projects] c"_s,
                            u"f"_s }));
}

TEST_F(ProjectListModelTest, OnePinnedProjectPutsATitleAboveTheOthers)
{
    favorites->ids = { u"b"_s };

    list({ u"a"_s, u"b"_s });

    EXPECT_EQ(shown(), (QStringList{ u"b"_s, u"[All Projects] a"_s }));
}

TEST_F(ProjectListModelTest, AProjectThatIsPinnedAndRecentStandsOnlyAmongThePinned)
{
    favorites->ids = { u"b"_s };
    recents->ids = { u"b"_s };

    list({ u"a"_s, u"b"_s });

    EXPECT_EQ(shown(), (QStringList{ u"b"_s, u"[All Projects] a"_s }));
}

TEST_F(ProjectListModelTest, TheRecentGroupHasItsTitleAlsoWhenItIsFirst)
{
    recents->ids = { u"a"_s };

    list({ u"a"_s });

    EXPECT_EQ(shown(), QStringList{ u"[Recently Used] a"_s });
}

TEST_F(ProjectListModelTest, AnIdThatIsRecentTwiceCountsByItsFirstPlace)
{
    recents->ids = { u"b"_s, u"a"_s, u"b"_s };

    list({ u"a"_s, u"b"_s });

    EXPECT_EQ(shown(), (QStringList{ u"[Recently Used] b"_s, u"a"_s }));
}

TEST_F(ProjectListModelTest, MarksTheActiveProjectInWhateverGroup)
{
    favorites->ids = { u"a"_s };
    recents->ids = { u"b"_s };
    list({ u"a"_s, u"b"_s, u"c"_s });

    activate(u"a"_s);
    EXPECT_EQ(shown(), (QStringList{ u"a*"_s, u"[Recently Used] b"_s, u"[All Projects] c"_s }));
    activate(u"b"_s);
    EXPECT_EQ(shown(), (QStringList{ u"a"_s, u"[Recently Used] b*"_s, u"[All Projects] c"_s }));
    activate(u"c"_s);
    EXPECT_EQ(shown(), (QStringList{ u"a"_s, u"[Recently Used] b"_s, u"[All Projects] c*"_s }));
    activate(u"C"_s);
    EXPECT_EQ(shown(), (QStringList{ u"a"_s, u"[Recently Used] b"_s, u"[All Projects] c"_s }));
    activate(std::nullopt);
    EXPECT_EQ(shown(), (QStringList{ u"a"_s, u"[Recently Used] b"_s, u"[All Projects] c"_s }));
}

TEST_F(ProjectListModelTest, TitlesAndGroupsFollowTheFilteredProjects)
{
    favorites->ids = { u"prod-1"_s };
    recents->ids = { u"dev-1"_s };
    list({ u"prod-1"_s, u"dev-1"_s, u"dev-2"_s });

    model.setFilterText(u"DEV"_s);
    EXPECT_EQ(shown(), (QStringList{ u"[Recently Used] dev-1"_s, u"[All Projects] dev-2"_s }));
    model.setFilterText(u"dev-2"_s);
    EXPECT_EQ(shown(), QStringList{ u"dev-2"_s });
    model.setFilterText(u"nowhere"_s);
    EXPECT_EQ(shown(), QStringList());
    EXPECT_FALSE(model.hasNoProjects()) << "there are projects, they only do not match";
    model.setFilterText(QString());
    EXPECT_EQ(shown().size(), 3);
}

TEST_F(ProjectListModelTest, TheDisplayNameIsFilteredByButNotTheId)
{
    list({ u"p-1"_s, u"p-2"_s }); // called "Name of p-1" and "Name of p-2"

    model.setFilterText(u"nAmE oF p-2"_s);

    EXPECT_EQ(shown(), QStringList{ u"p-2"_s });
    EXPECT_EQ(model.index(0).data(ProjectListModel::NameRole), u"Name of p-2"_s);
}

TEST_F(ProjectListModelTest, OffersTheFilterFromTheSixthProjectOn)
{
    const QSignalSpy changes(&model, &ProjectListModel::isFilterOfferedChanged);
    list({ u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s });
    EXPECT_FALSE(model.isFilterOffered());
    EXPECT_EQ(changes.count(), 0);

    list({ u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s });
    EXPECT_TRUE(model.isFilterOffered());
    EXPECT_EQ(changes.count(), 1);

    model.setFilterText(u"nowhere"_s);
    EXPECT_TRUE(model.isFilterOffered()) << "counted before filtering";
}

TEST_F(ProjectListModelTest, HasNoProjectsOnlyWhenNothingIsBeingLoaded)
{
    const QSignalSpy changes(&model, &ProjectListModel::hasNoProjectsChanged);
    EXPECT_TRUE(model.hasNoProjects());

    const auto run = executor->expect(GCloudCommand::listProjects());
    manager->reload();
    EXPECT_FALSE(model.hasNoProjects());
    run->finish(listing({}));
    EXPECT_TRUE(model.hasNoProjects());
    EXPECT_EQ(changes.count(), 2);

    list({ u"a"_s });
    EXPECT_FALSE(model.hasNoProjects());
}

TEST_F(ProjectListModelTest, TellsThePlaceOfEachRowInTheWholeList)
{
    favorites->ids = { u"b"_s };
    list({ u"a"_s, u"b"_s, u"c"_s });

    EXPECT_EQ(model.index(0).data(ProjectListModel::PositionRole), 1);
    EXPECT_EQ(model.index(2).data(ProjectListModel::PositionRole), 3);
    EXPECT_EQ(model.index(2).data(ProjectListModel::SetSizeRole), 3);
    EXPECT_FALSE(model.index(2).data(Qt::DisplayRole).isValid());

    model.setFilterText(u"a"_s); // "Name of ..." matches, so all stay
    EXPECT_EQ(model.index(0).data(ProjectListModel::SetSizeRole), 3);
    model.setFilterText(u"of a"_s);
    EXPECT_EQ(model.index(0).data(ProjectListModel::SetSizeRole), 1);
}

TEST_F(ProjectListModelTest, PlacesAreToldAnewWhenRowsCome)
{
    QList<std::pair<int, int>> told;
    QObject::connect(
        &model, &QAbstractItemModel::dataChanged, &model,
        [&](const QModelIndex &first, const QModelIndex &last, const QList<int> &roles) {
            if (roles.contains(ProjectListModel::PositionRole)) {
                told.append({ first.row(), last.row() });
            }
        });

    list({ u"a"_s, u"b"_s });

    EXPECT_EQ(told, (QList<std::pair<int, int>>{ { 0, 1 } }));
}

TEST_F(ProjectListModelTest, ARowThatIsPinnedTravels)
{
    list({ u"a"_s, u"b"_s, u"c"_s, u"d"_s });
    mirror->messages.clear();

    state->togglePin(u"c"_s);
    EXPECT_EQ(mirror->messages, (QStringList{ u"move 2 to 0"_s, u"change 0-1"_s }))
        << "c is pinned now, a has a title";

    mirror->messages.clear();
    state->togglePin(u"c"_s);
    EXPECT_EQ(mirror->messages, (QStringList{ u"move 0 to 2"_s, u"change 0"_s, u"change 2"_s }));
    EXPECT_EQ(mirror->rows, mirror->modelRows());
}

TEST_F(ProjectListModelTest, ASwitchMovesTheMarkAndLetsTheGroupsFollow)
{
    activate(u"a"_s);
    list({ u"a"_s, u"b"_s, u"c"_s });
    mirror->messages.clear();

    executor->expect(GCloudCommand::setProject(u"c"_s), success());
    reader->properties[u"default"_s].project = u"c"_s;
    state->switchProject(u"c"_s);
    processEvents();

    EXPECT_EQ(shown(), (QStringList{ u"[Recently Used] c*"_s, u"[All Projects] a"_s, u"b"_s }));
    EXPECT_EQ(mirror->messages,
              (QStringList{ u"change 0"_s, u"change 2"_s, u"move 2 to 0"_s, u"change 0-1"_s }));
}

TEST_F(ProjectListModelTest, ANewListKeepsTheRowsThatStay)
{
    list({ u"a"_s, u"b"_s, u"c"_s, u"d"_s });
    mirror->messages.clear();

    list({ u"b"_s, u"c"_s, u"x"_s, u"d"_s });

    EXPECT_EQ(mirror->messages, (QStringList{ u"remove 0"_s, u"insert 2"_s }));
    EXPECT_EQ(mirror->rows, (QStringList{ u"b"_s, u"c"_s, u"x"_s, u"d"_s }));
}

TEST_F(ProjectListModelTest, TheSameListAgainIsNoNews)
{
    list({ u"a"_s, u"b"_s });
    mirror->messages.clear();

    list({ u"a"_s, u"b"_s });

    EXPECT_EQ(mirror->messages, QStringList());
}

TEST_F(ProjectListModelTest, IdsThatGcloudListsTwiceStayTwoRows)
{
    favorites->ids = { u"a"_s };
    list({ u"a"_s, u"b"_s, u"a"_s });
    EXPECT_EQ(shown(), (QStringList{ u"a"_s, u"a"_s, u"[All Projects] b"_s }));

    list({ u"b"_s, u"a"_s });

    EXPECT_EQ(shown(), (QStringList{ u"a"_s, u"[All Projects] b"_s }));
    EXPECT_EQ(mirror->rows, mirror->modelRows());
}

TEST_F(ProjectListModelTest, FilteringThousandsIsToldInAFewSteps)
{
    QStringList ids;
    for (int number = 0; number < 10'000; ++number) {
        ids.append(u"project-%1"_s.arg(number, 5, 10, QLatin1Char('0')));
    }
    list(ids);
    mirror->messages.clear();

    model.setFilterText(u"7"_s);
    EXPECT_EQ(mirror->rows, mirror->modelRows());
    model.setFilterText(u"77"_s);
    EXPECT_EQ(mirror->rows, mirror->modelRows());
    model.setFilterText(QString());
    EXPECT_EQ(mirror->rows, ids);

    EXPECT_LE(mirror->messages.size(), 6);
}

TEST_F(ProjectListModelTest, ANewStateManagerIsFollowedInsteadOfTheOld)
{
    list({ u"a"_s });

    model.setStateManager(nullptr);
    EXPECT_EQ(shown(), QStringList());
    EXPECT_TRUE(model.hasNoProjects());
    list({ u"b"_s });
    EXPECT_EQ(shown(), QStringList());

    model.setStateManager(state.get());
    EXPECT_EQ(shown(), QStringList{ u"b"_s });
}

TEST_F(ProjectListModelTest, WhateverHappensItTellsAllOfIt)
{
    std::mt19937 random(7);
    const auto some = [&random](QStringList ids) {
        std::ranges::shuffle(ids, random);
        return ids.first(static_cast<qsizetype>(random() % static_cast<unsigned>(ids.size() + 1)));
    };
    QStringList pool;
    for (int number = 0; number < 90; ++number) {
        pool.append(u"p%1"_s.arg(number));
    }
    for (int step = 0; step < 1'000; ++step) {
        switch (random() % 5) {
        case 0:
            list(some(pool));
            break;
        case 1:
            state->togglePin(pool[static_cast<qsizetype>(random() % 90)]);
            break;
        case 2:
            recents->recordUsage(pool[static_cast<qsizetype>(random() % 90)]);
            break;
        case 3:
            model.setFilterText(random() % 2 == 0 ? QString() : QString::number(random() % 20));
            break;
        case 4:
            activate(pool[static_cast<qsizetype>(random() % 90)]);
            break;
        }
        ASSERT_EQ(mirror->rows, mirror->modelRows()) << "step " << step;
    }
    EXPECT_FALSE(mirror->messages.contains(u"reset"_s));
    EXPECT_FALSE(mirror->messages.contains(u"layout"_s));
}

} // namespace torvi
