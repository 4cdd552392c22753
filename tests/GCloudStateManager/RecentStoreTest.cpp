// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/RecentStore.h"

#include "tests/support/PreferencesFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

class RecentStoreTest : public testing::Test
{
protected:
    PreferencesFolder folder;
    std::unique_ptr<RecentStore> store = std::make_unique<RecentStore>(folder.open());
    int changes = 0;

    RecentStoreTest()
    {
        countChanges();
    }

    void load(const QByteArray &stored)
    {
        store = std::make_unique<RecentStore>(folder.holding("com.veldra.recents=" + stored));
        countChanges();
    }

    void record(const QStringList &projectIds)
    {
        for (const QString &projectId : projectIds) {
            store->recordUsage(projectId);
        }
    }

    [[nodiscard]] QByteArray stored() const
    {
        return folder.stored("com.veldra.recents");
    }

private:
    void countChanges()
    {
        QObject::connect(store.get(), &RecentStoring::changed, store.get(), [this] { ++changes; });
    }
};

TEST_F(RecentStoreTest, IsEmptyAtFirst)
{
    EXPECT_EQ(store->recentProjectIds(), QStringList());
}

TEST_F(RecentStoreTest, PutsTheNewestFirst)
{
    record({ u"b"_s, u"a"_s, u"c"_s });

    EXPECT_EQ(store->recentProjectIds(), (QStringList{ u"c"_s, u"a"_s, u"b"_s }));
    EXPECT_EQ(stored(), "c, a, b");
    EXPECT_EQ(RecentStore(folder.reopened()).recentProjectIds(), store->recentProjectIds());
    EXPECT_EQ(changes, 3);
}

TEST_F(RecentStoreTest, MovesAKnownIdToTheFront)
{
    record({ u"a"_s, u"b"_s, u"c"_s });

    record({ u"a"_s });

    EXPECT_EQ(store->recentProjectIds(), (QStringList{ u"a"_s, u"c"_s, u"b"_s }));
    EXPECT_EQ(changes, 4);
}

TEST_F(RecentStoreTest, RewritesTheKeyWhenTheFirstIdIsUsedAgain)
{
    record({ u"a"_s, u"b"_s });
    folder.discard();

    record({ u"b"_s });

    EXPECT_EQ(store->recentProjectIds(), (QStringList{ u"b"_s, u"a"_s }));
    EXPECT_EQ(stored(), "b, a");
    EXPECT_EQ(changes, 2) << "nothing that anybody could see";
}

TEST_F(RecentStoreTest, KeepsTheLastTenOfEleven)
{
    record({ u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s, u"9"_s, u"10"_s });
    EXPECT_EQ(store->recentProjectIds().size(), 10);

    record({ u"11"_s });

    EXPECT_EQ(store->recentProjectIds(),
              (QStringList{ u"11"_s, u"10"_s, u"9"_s, u"8"_s, u"7"_s, u"6"_s, u"5"_s, u"4"_s,
                            u"3"_s, u"2"_s }));
    EXPECT_EQ(stored(), "11, 10, 9, 8, 7, 6, 5, 4, 3, 2");
}

TEST_F(RecentStoreTest, LoadsALongerListWholeAndTrimsItAtTheNextUse)
{
    load("1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12");
    EXPECT_EQ(store->recentProjectIds().size(), 12);
    EXPECT_EQ(stored(), "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12");

    record({ u"1"_s });

    EXPECT_EQ(stored(), "1, 2, 3, 4, 5, 6, 7, 8, 9, 10");
    EXPECT_EQ(changes, 1);
}

TEST_F(RecentStoreTest, LoadsDuplicatesAsTheyAreAndDropsThoseOfAUsedId)
{
    load("a, b, a, b");
    EXPECT_EQ(store->recentProjectIds(), (QStringList{ u"a"_s, u"b"_s, u"a"_s, u"b"_s }));

    record({ u"b"_s });

    EXPECT_EQ(store->recentProjectIds(), (QStringList{ u"b"_s, u"a"_s, u"a"_s }));
}

TEST_F(RecentStoreTest, TellsIdsApartByCaseAndSpaces)
{
    record({ u"a"_s, u"A"_s, u" a"_s });

    EXPECT_EQ(store->recentProjectIds(), (QStringList{ u" a"_s, u"A"_s, u"a"_s }));
}

TEST_F(RecentStoreTest, LoadsATextAsOneId)
{
    load("only");

    EXPECT_EQ(store->recentProjectIds(), QStringList{ u"only"_s });
}

TEST_F(RecentStoreTest, LoadsAValueThatIsNoListOfTextsAsEmpty)
{
    load("a, @ByteArray(b)");

    EXPECT_EQ(store->recentProjectIds(), QStringList());
}

TEST_F(RecentStoreTest, ReadsTheKeyOnlyWhenConstructed)
{
    load("a");
    const auto other = folder.open();
    other->setStrings(u"com.veldra.recents"_s, { u"b"_s });

    EXPECT_EQ(store->recentProjectIds(), QStringList{ u"a"_s });
}

} // namespace torvi
