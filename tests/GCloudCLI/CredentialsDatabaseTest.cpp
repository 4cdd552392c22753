// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/CredentialsDatabase.h"

#include "GCloudModels/AppError.h"
#include "tests/support/FileEvents.h"
#include "tests/support/NoMoreFiles.h"
#include "tests/support/TestData.h"
#include "tests/support/TestDirectory.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <memory>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace torvi {

using CredentialsDatabase::readAccounts;

namespace {

const QString kName = u"credentials.db"_s;

/// Another program that has the database open.
class Writer final
{
public:
    explicit Writer(const QString &path)
    {
        EXPECT_EQ(sqlite3_open(QFile::encodeName(path).constData(), &m_database), SQLITE_OK);
        run("PRAGMA synchronous=OFF"); // a test need not survive a power cut
    }

    ~Writer()
    {
        EXPECT_EQ(sqlite3_close(m_database), SQLITE_OK);
    }

    void run(const char *sql) const
    {
        EXPECT_EQ(sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr), SQLITE_OK)
            << sql << ": " << sqlite3_errmsg(m_database);
    }

private:
    Q_DISABLE_COPY_MOVE(Writer)

    sqlite3 *m_database = nullptr;
};

constexpr const char *kTable = "CREATE TABLE credentials (account_id TEXT PRIMARY KEY, value BLOB);"
                               "INSERT INTO credentials VALUES ('a@b', NULL), ('c@d', x'00');";
constexpr const char *kUseWriteAheadLog = "PRAGMA journal_mode=WAL;";

std::string errorOf(const QString &path)
{
    try {
        (void)readAccounts(path);
    } catch (const AppError &error) {
        return error.what();
    }
    return {};
}

} // namespace

class CredentialsDatabaseTest : public testing::Test
{
protected:
    [[nodiscard]] QString path(const QString &name = kName) const
    {
        return directory.path(name);
    }

    void create(const char *sql, const QString &name = kName) const
    {
        directory.makeFolder(QFileInfo(name).path());
        Writer(path(name)).run(sql);
    }

    [[nodiscard]] std::string unreadable(const char *reason) const
    {
        return "Could not read config file: " + path().toStdString() + ": " + reason;
    }

    const QStringList accounts{ u"a@b"_s, u"c@d"_s };
    TestDirectory directory;
};

TEST_F(CredentialsDatabaseTest, ReadsTheAccountsThatGcloudStored)
{
    EXPECT_EQ(readAccounts(testDataPath(u"config-dirs/service-account-adc/credentials.db"_s)),
              QStringList{ u"deployer@orchid-prod-4821.iam.gserviceaccount.com"_s });
}

TEST_F(CredentialsDatabaseTest, ReadsAnEmptyTable)
{
    EXPECT_EQ(readAccounts(testDataPath(u"config-dirs/unset-leftovers/credentials.db"_s)),
              QStringList());
}

TEST_F(CredentialsDatabaseTest, SkipsRowsWithoutAValue)
{
    create("CREATE TABLE credentials (account_id TEXT);"
           "INSERT INTO credentials VALUES (NULL), ('a'), (NULL), (''), (12);");

    EXPECT_EQ(readAccounts(path()), (QStringList{ u"a"_s, u""_s, u"12"_s }));
}

TEST_F(CredentialsDatabaseTest, ReadsTextInAnyEncodingOfTheDatabase)
{
    create("PRAGMA encoding='UTF-16le'; CREATE TABLE credentials (account_id TEXT);"
           "INSERT INTO credentials VALUES ('\xC3\xA9@b');");

    EXPECT_EQ(readAccounts(path()), QStringList{ u"\u00E9@b"_s });
}

TEST_F(CredentialsDatabaseTest, TextThatIsNoUtf8IsKeptWithReplacements)
{
    create("CREATE TABLE credentials (account_id TEXT);"
           "INSERT INTO credentials VALUES (CAST(x'61FF62' AS TEXT));");

    EXPECT_EQ(readAccounts(path()), QStringList{ u"a\uFFFDb"_s });
}

TEST_F(CredentialsDatabaseTest, MissingTableFailsAtPreparing)
{
    create("CREATE TABLE other (account_id TEXT);");

    EXPECT_EQ(errorOf(path()),
              "Failed to parse gcloud output: SQLite prepare failed: no such table: credentials");
}

TEST_F(CredentialsDatabaseTest, EmptyFileFailsAtPreparing)
{
    directory.write(kName, "");

    EXPECT_EQ(errorOf(path()),
              "Failed to parse gcloud output: SQLite prepare failed: no such table: credentials");
}

TEST_F(CredentialsDatabaseTest, FileThatIsNoDatabaseFailsAtPreparing)
{
    directory.write(kName, QByteArray(4096, 'x'));

    EXPECT_EQ(errorOf(path()),
              "Failed to parse gcloud output: SQLite prepare failed: file is not a database");
}

TEST_F(CredentialsDatabaseTest, FailureBehindGoodRowsIsNoShortList)
{
    create("CREATE VIEW credentials AS SELECT 'a@b' AS account_id"
           " UNION ALL SELECT abs(-9223372036854775807 - 1);");

    EXPECT_EQ(errorOf(path()),
              "Failed to parse gcloud output: SQLite step failed: integer overflow");
}

TEST_F(CredentialsDatabaseTest, LockedDatabaseFailsAfterTheWait)
{
    create(kTable);
    const Writer writer(path());
    writer.run("BEGIN EXCLUSIVE");
    QElapsedTimer timer;
    timer.start();

    const std::string error = errorOf(path());

    EXPECT_EQ(error, "Failed to parse gcloud output: SQLite prepare failed: database is locked");
    EXPECT_GE(timer.elapsed(), 25);
    writer.run("ROLLBACK");
    EXPECT_EQ(readAccounts(path()), accounts);
}

TEST_F(CredentialsDatabaseTest, WriterThatIsNotWritingYetIsNoObstacle)
{
    create(kTable);
    const Writer writer(path());
    writer.run("BEGIN IMMEDIATE; INSERT INTO credentials VALUES ('e@f', NULL)");

    EXPECT_EQ(readAccounts(path()), accounts);

    writer.run("COMMIT");
    EXPECT_EQ(readAccounts(path()).size(), 3);
}

TEST_F(CredentialsDatabaseTest, DirectoryIsLeftToSQLite)
{
    directory.makeFolder(kName);

    EXPECT_NE(errorOf(path()), "");
}

TEST_F(CredentialsDatabaseTest, FifoIsNeverOpened)
{
    directory.makeFifo(kName);
    directory.makeLink(u"link.db"_s, kName);
    FileEvents events(directory.path());

    EXPECT_EQ(errorOf(path()), unreadable("Unknown error"));
    EXPECT_NE(errorOf(path(u"link.db"_s)), "");
    EXPECT_EQ(events.taken(), QStringList());
}

TEST_F(CredentialsDatabaseTest, FifoInACompanionsPlaceIsNotWaitedFor)
{
    for (const QString &companion : { u"journal"_s, u"wal"_s, u"shm"_s }) {
        const QString real = companion + u"/credentials.db"_s;
        const QString link = companion + u".db"_s;
        create(kTable, real);
        directory.makeFifo(real + u'-' + companion);
        directory.makeLink(link, real);

        EXPECT_EQ(errorOf(path(link)),
                  "Could not read config file: " + path(link).toStdString() + ": Unknown error");
    }
}

TEST_F(CredentialsDatabaseTest, FileThatCannotBeOpenedFailsWithSQLitesMessage)
{
    create(kTable);
    const NoMoreFiles limit;

    EXPECT_EQ(errorOf(path()), unreadable("unable to open database file"));
}

TEST_F(CredentialsDatabaseTest, FileWithoutPermissionFailsWithSQLitesMessage)
{
    if (::geteuid() == 0) {
        GTEST_SKIP() << "root may read every file";
    }
    create(kTable);
    ASSERT_TRUE(QFile::setPermissions(path(), {}));

    EXPECT_EQ(errorOf(path()), unreadable("unable to open database file"));
}

TEST_F(CredentialsDatabaseTest, ReadingChangesNoFile)
{
    create(kTable);
    FileEvents events(directory.path());

    EXPECT_EQ(readAccounts(path()), accounts);

    EXPECT_EQ(events.takenChanges(), QStringList());
}

TEST_F(CredentialsDatabaseTest, ReadingALoggedDatabaseChangesNoFile)
{
    const QString name = u"a b%41?c#d&\u00FC/credentials.db"_s;
    create(kUseWriteAheadLog, name);
    create(kTable, name);
    const QString folder = QFileInfo(path(name)).path();
    FileEvents events(folder);

    EXPECT_EQ(readAccounts(path(name)), accounts);

    EXPECT_EQ(events.takenChanges(), QStringList());
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList{ kName });
    Writer(path(name)).run("SELECT account_id FROM credentials");
    EXPECT_NE(events.takenChanges(), QStringList()) << "nothing would have been noticed";
}

TEST_F(CredentialsDatabaseTest, ReadingALoggedDatabaseThroughALinkChangesNoFile)
{
    create(kUseWriteAheadLog, u"real/store.db"_s);
    create(kTable, u"real/store.db"_s);
    directory.makeLink(kName, u"real/store.db"_s);
    FileEvents events(directory.path());
    FileEvents realEvents(directory.path(u"real"_s));

    EXPECT_EQ(readAccounts(path()), accounts);

    EXPECT_EQ(events.takenChanges(), QStringList());
    EXPECT_EQ(realEvents.takenChanges(), QStringList());
}

TEST_F(CredentialsDatabaseTest, WhatIsOnlyInTheLogIsRead)
{
    create(kUseWriteAheadLog);
    const Writer writer(path());
    writer.run(kTable);
    ASSERT_GT(QFileInfo(path() + u"-wal"_s).size(), 0);

    EXPECT_EQ(readAccounts(path()), accounts);
}

TEST_F(CredentialsDatabaseTest, EmptyLogOfAnotherProgramIsLeftAlone)
{
    create(kUseWriteAheadLog);
    const Writer writer(path());
    writer.run(kTable);
    writer.run("PRAGMA wal_checkpoint(TRUNCATE)");
    ASSERT_TRUE(QFile::exists(path() + u"-wal"_s));
    FileEvents events(directory.path());

    EXPECT_EQ(readAccounts(path()), accounts);

    EXPECT_EQ(events.takenChanges(), QStringList());
}

TEST_F(CredentialsDatabaseTest, SeveralThreadsReadAtOnce)
{
    create(kTable);
    create(kUseWriteAheadLog, u"logged.db"_s);
    create(kTable, u"logged.db"_s);

    std::vector<std::jthread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([this] {
            for (int round = 0; round < 50; ++round) {
                EXPECT_EQ(readAccounts(path()), accounts);
                EXPECT_EQ(readAccounts(path(u"logged.db"_s)), accounts);
            }
        });
    }
}

} // namespace torvi
