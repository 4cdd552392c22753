// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/FavoritesStore.h"

#include "tests/support/PreferencesFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

class FavoritesStoreTest : public testing::Test
{
protected:
    PreferencesFolder folder;
    std::unique_ptr<FavoritesStore> store = std::make_unique<FavoritesStore>(folder.open());
    int changes = 0;

    FavoritesStoreTest()
    {
        countChanges();
    }

    void load(const QByteArray &stored)
    {
        store = std::make_unique<FavoritesStore>(folder.holding("com.veldra.favorites=" + stored));
        countChanges();
    }

    [[nodiscard]] QByteArray stored() const
    {
        return folder.stored("com.veldra.favorites");
    }

    [[nodiscard]] QSet<QString> reloaded() const
    {
        return FavoritesStore(folder.reopened()).allPinned();
    }

private:
    void countChanges()
    {
        QObject::connect(store.get(), &FavoritesStoring::changed, store.get(),
                         [this] { ++changes; });
    }
};

TEST_F(FavoritesStoreTest, IsEmptyAtFirst)
{
    EXPECT_TRUE(store->allPinned().isEmpty());
    EXPECT_FALSE(store->isPinned(u"a"_s));
}

TEST_F(FavoritesStoreTest, RemembersAPin)
{
    store->pin(u"a"_s);

    EXPECT_TRUE(store->isPinned(u"a"_s));
    EXPECT_EQ(store->allPinned(), QSet<QString>{ u"a"_s });
    EXPECT_EQ(reloaded(), QSet<QString>{ u"a"_s });
    EXPECT_EQ(changes, 1);
}

TEST_F(FavoritesStoreTest, StoresTheIdsSorted)
{
    store->pin(u"b"_s);
    store->pin(u"a"_s);
    store->pin(u"c"_s);

    EXPECT_EQ(stored(), "a, b, c");
}

TEST_F(FavoritesStoreTest, SortsByPlainStringOrder)
{
    store->pin(u"b"_s);
    store->pin(u"a10"_s);
    store->pin(u"a9"_s);
    store->pin(u"C"_s);

    EXPECT_EQ(stored(), "C, a10, a9, b");
}

TEST_F(FavoritesStoreTest, RewritesTheKeyWhenAPinnedIdIsPinnedAgain)
{
    store->pin(u"a"_s);
    folder.discard();

    store->pin(u"a"_s);

    EXPECT_EQ(store->allPinned(), QSet<QString>{ u"a"_s });
    EXPECT_EQ(stored(), "a");
    EXPECT_EQ(changes, 1) << "nothing that anybody could see";
}

TEST_F(FavoritesStoreTest, ForgetsAnUnpinnedId)
{
    store->pin(u"a"_s);
    store->pin(u"b"_s);

    store->unpin(u"a"_s);

    EXPECT_FALSE(store->isPinned(u"a"_s));
    EXPECT_EQ(stored(), "b");
    EXPECT_EQ(changes, 3);
}

TEST_F(FavoritesStoreTest, ForgetsTheLastId)
{
    store->pin(u"a"_s);

    store->unpin(u"a"_s);

    EXPECT_TRUE(store->allPinned().isEmpty());
    EXPECT_TRUE(reloaded().isEmpty());
}

TEST_F(FavoritesStoreTest, UnpinningAnIdThatIsNotPinnedOnlyRewritesTheKey)
{
    store->pin(u"a"_s);
    folder.discard();

    store->unpin(u"b"_s);

    EXPECT_EQ(store->allPinned(), QSet<QString>{ u"a"_s });
    EXPECT_EQ(stored(), "a");
    EXPECT_EQ(changes, 1);
}

TEST_F(FavoritesStoreTest, TellsIdsApartByCaseAndSpaces)
{
    store->pin(u"a"_s);

    EXPECT_FALSE(store->isPinned(u"A"_s));
    EXPECT_FALSE(store->isPinned(u" a"_s));
}

TEST_F(FavoritesStoreTest, LoadsDuplicatesOnce)
{
    load("a, b, a");

    EXPECT_EQ(store->allPinned(), (QSet<QString>{ u"a"_s, u"b"_s }));
}

TEST_F(FavoritesStoreTest, LoadsATextAsOneId)
{
    load("example.com:legacy");

    EXPECT_EQ(store->allPinned(), QSet<QString>{ u"example.com:legacy"_s });
}

TEST_F(FavoritesStoreTest, LoadsAValueThatIsNoListOfTextsAsEmpty)
{
    load("@ByteArray(a)");

    EXPECT_TRUE(store->allPinned().isEmpty());
}

TEST_F(FavoritesStoreTest, ReadsTheKeyOnlyWhenConstructed)
{
    load("a");
    const auto other = folder.open();
    other->setStrings(u"com.veldra.favorites"_s, { u"b"_s });

    EXPECT_EQ(store->allPinned(), QSet<QString>{ u"a"_s });
}

} // namespace torvi
