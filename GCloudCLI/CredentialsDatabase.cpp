// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/CredentialsDatabase.h"

#include "GCloudCLI/GCloudFile.h"
#include "GCloudModels/AppError.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <sqlite3.h>

#include <array>
#include <chrono>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace torvi::CredentialsDatabase {

namespace {

using Connection = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;
using Statement = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

constexpr const char *kNoMessage = "Unknown error";

QString message(sqlite3 *database)
{
    const char *text = database != nullptr ? sqlite3_errmsg(database) : nullptr;
    return QString::fromUtf8(text != nullptr ? text : kNoMessage);
}

AppError unreadable(const QString &path, const QString &reason)
{
    return AppError::configFileUnreadable(path + u": "_s + reason);
}

/// `name` is the path, or with SQLITE_OPEN_URI among `flags` a "file:" address.
Connection opened(const QString &path, const QByteArray &name, int flags = 0)
{
    sqlite3 *database = nullptr;
    const int status = sqlite3_open_v2(name.constData(), &database,
                                       SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX | flags, nullptr);
    Connection connection(database, &sqlite3_close); // to be closed also when it failed to open
    if (status != SQLITE_OK) {
        throw unreadable(path, message(database));
    }
    return connection;
}

QStringList rows(sqlite3 *database, sqlite3_stmt *statement)
{
    QStringList result;
    int status = sqlite3_step(statement);
    for (; status == SQLITE_ROW; status = sqlite3_step(statement)) {
        const unsigned char *text = sqlite3_column_text(statement, 0);
        if (text != nullptr) {
            result.append(QString::fromUtf8(reinterpret_cast<const char *>(text)));
        }
    }
    if (status != SQLITE_DONE) { // a list that ends early would look whole
        throw AppError::parseError(
            QCoreApplication::translate("CredentialsDatabase", "SQLite step failed: %1")
                .arg(message(database)));
    }
    return result;
}

/// Preparing and stepping may each meet a lock; together they wait no longer than one of them may.
QStringList accounts(sqlite3 *database)
{
    const QDeadlineTimer deadline(25ms, Qt::PreciseTimer);
    sqlite3_busy_timeout(database, 25);
    sqlite3_stmt *prepared = nullptr;
    const int status = sqlite3_prepare_v2(database, "SELECT account_id FROM credentials", -1,
                                          &prepared, nullptr);
    const Statement statement(prepared, &sqlite3_finalize);
    if (status != SQLITE_OK) {
        throw AppError::parseError(
            QCoreApplication::translate("CredentialsDatabase", "SQLite prepare failed: %1")
                .arg(message(database)));
    }
    sqlite3_busy_timeout(database, static_cast<int>(deadline.remainingTime()));
    return rows(database, prepared);
}

/// Whether the file's header says that changes go to a write-ahead log beside it.
bool usesWriteAheadLog(sqlite3 *database)
{
    // Through SQLite's own descriptor: closing another one on the same file would drop the locks
    // that this process holds on it in other threads.
    sqlite3_file *file = nullptr;
    sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    std::array<unsigned char, 2> versions{}; // for writing and for reading
    constexpr int kVersionsOffset = 18;
    const int status
        = file->pMethods->xRead(file, versions.data(), versions.size(), kVersionsOffset);
    return status == SQLITE_OK && versions[1] == 2;
}

/// The path without links, which the companions of the file are named after.
QString resolvedPath(sqlite3 *database)
{
    return QFile::decodeName(sqlite3_db_filename(database, "main"));
}

/// SQLite opens these without looking, and would wait for the writer of a FIFO.
void requireNoSpecialCompanion(const QString &path, const QString &resolved)
{
    for (const QString &suffix : { u"-journal"_s, u"-wal"_s, u"-shm"_s }) {
        if (GCloudFile::fileKind(resolved + suffix) == GCloudFile::FileKind::special) {
            throw unreadable(path, QString::fromUtf8(kNoMessage));
        }
    }
}

bool hasPendingLog(const QString &resolved)
{
    return QFileInfo(resolved + u"-wal"_s).size() > 0;
}

} // namespace

QStringList readAccounts(const QString &path)
{
    if (GCloudFile::fileKind(path) == GCloudFile::FileKind::special) {
        throw unreadable(path, QString::fromUtf8(kNoMessage));
    }
    const Connection connection = opened(path, QFile::encodeName(path));
    const QString resolved = resolvedPath(connection.get());
    requireNoSpecialCompanion(path, resolved);
    if (usesWriteAheadLog(connection.get()) && !hasPendingLog(resolved)) {
        // Even a reader creates the log and its index beside the database. The watcher would see
        // that and read again, for ever.
        const QByteArray address
            = "file:" + QUrl::toPercentEncoding(resolved, "/") + "?immutable=1";
        const Connection snapshot = opened(path, address, SQLITE_OPEN_URI);
        QStringList result = accounts(snapshot.get());
        if (!hasPendingLog(resolved)) {
            return result;
        }
    }
    return accounts(connection.get());
}

} // namespace torvi::CredentialsDatabase
