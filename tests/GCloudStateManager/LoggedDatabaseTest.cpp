// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/CredentialsDatabase.h"
#include "GCloudStateManager/DirectoryEvents.h"
#include "tests/support/TemporaryTree.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace torvi {

/// A credentials database whose newest rows are only in the write-ahead log beside it.
class LoggedDatabaseTest : public testing::Test
{
protected:
    TemporaryTree tree;
    sqlite3 *writer = nullptr;

    LoggedDatabaseTest()
    {
        tree.makeDirectory("gcloud");
        tree.makeDirectory("crashed");
        EXPECT_EQ(sqlite3_open(tree.path("gcloud/credentials.db").c_str(), &writer), SQLITE_OK);
        run("PRAGMA journal_mode=WAL; PRAGMA synchronous=OFF;"
            "CREATE TABLE credentials (account_id TEXT PRIMARY KEY, value BLOB)");
        run("INSERT INTO credentials VALUES ('a@b', NULL)");
    }

    ~LoggedDatabaseTest() override
    {
        EXPECT_EQ(sqlite3_close(writer), SQLITE_OK);
    }

    void run(const char *sql) const
    {
        EXPECT_EQ(sqlite3_exec(writer, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sql;
    }

    [[nodiscard]] QStringList read(const std::string &directory) const
    {
        return CredentialsDatabase::readAccounts(
            QString::fromStdString(tree.path(directory + "/credentials.db")));
    }
};

TEST_F(LoggedDatabaseTest, ReadingItIsNoChange)
{
    DirectoryEvents events(tree.path("gcloud"));

    EXPECT_EQ(read("gcloud"), QStringList{ u"a@b"_s });

    EXPECT_FALSE(events.takeChanges());
}

TEST_F(LoggedDatabaseTest, ReadingWhatAKilledProgramLeftIsNoChange)
{
    for (const std::string name : { "credentials.db", "credentials.db-wal" }) {
        tree.write("crashed/" + name, tree.read("gcloud/" + name));
    }
    DirectoryEvents events(tree.path("crashed"));

    for (int readings = 0; readings < 2; ++readings) {
        EXPECT_EQ(read("crashed"), QStringList{ u"a@b"_s });

        EXPECT_FALSE(events.takeChanges());
    }
}

TEST_F(LoggedDatabaseTest, WhatAnotherProgramWritesIsAChange)
{
    DirectoryEvents events(tree.path("gcloud"));

    run("INSERT INTO credentials VALUES ('c@d', NULL)");

    EXPECT_TRUE(events.takeChanges());
    EXPECT_EQ(read("gcloud"), (QStringList{ u"a@b"_s, u"c@d"_s }));
    EXPECT_FALSE(events.takeChanges());
    run("PRAGMA wal_checkpoint(TRUNCATE)");
    EXPECT_TRUE(events.takeChanges());
}

} // namespace torvi
