// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// gcloud's SQLite database of credentialed accounts.
namespace torvi::CredentialsDatabase {

/// The e-mails of the accounts in the existing file `path`, in no particular order.
///
/// Leaves no file behind and changes none. Waits at most 25 ms for a lock that gcloud holds.
/// Thread: any, several calls at once.
/// Errors: throws AppError, configFileUnreadable() with SQLite's message when the file cannot be
/// opened, parseError() when it cannot be queried. No list is returned then, not even a short one.
[[nodiscard]] QStringList readAccounts(const QString &path);

} // namespace torvi::CredentialsDatabase
