# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""gcloud's SQLite files: credentials, cached access tokens and a small store a configuration.

They use the rollback journal. Every opening is for reading and writing and sets the mode 0600 of
the first two, so that a watcher sees events even when nothing changes.
"""

import contextlib
import os
import sqlite3
import time

from .files import touch_private

_CREDENTIALS = 'CREATE TABLE IF NOT EXISTS "credentials" (account_id TEXT PRIMARY KEY, value BLOB)'
_TOKENS = (
    'CREATE TABLE IF NOT EXISTS "access_tokens" (account_id TEXT PRIMARY KEY, access_token TEXT, '
    "token_expiry TIMESTAMP, rapt_token TEXT, id_token TEXT)"
)
_CONFIG = "CREATE TABLE IF NOT EXISTS config (config_attr TEXT PRIMARY KEY, value BLOB)"

_TOKEN_LIFE = 3600.0
_TOKEN_MARGIN = 240.0


@contextlib.contextmanager
def _database(path, table):
    connection = sqlite3.connect(path)
    try:
        # The same files and events as with syncing, but no waiting for a busy disk.
        connection.execute("PRAGMA synchronous = OFF")
        with connection:
            connection.execute(table)
            yield connection
    finally:
        connection.close()


class CredentialStore:
    """The accounts that have credentials, in `directory`/credentials.db."""

    def __init__(self, directory):
        self._path = os.path.join(directory, "credentials.db")

    def accounts(self):
        """Returns the account ids, sorted."""
        with self._open() as database:
            rows = database.execute("SELECT account_id FROM credentials ORDER BY rowid")
            return sorted(row[0] for row in rows)

    def load(self, account):
        """Returns the stored JSON text, or None."""
        with self._open() as database:
            rows = database.execute(
                "SELECT value FROM credentials WHERE account_id = ?", (account,)
            )
            return next((row[0] for row in rows), None)

    def store(self, account, value):
        with self._open() as database:
            database.execute("REPLACE INTO credentials VALUES (?, ?)", (account, value))

    def _open(self):
        touch_private(self._path)
        return _database(self._path, _CREDENTIALS)


class TokenStore:
    """The cached access tokens, in `directory`/access_tokens.db. Tokens live for an hour.

    is_private: False where gcloud does not care for the file's mode: with tokens of ADC files.
    """

    def __init__(self, directory, is_private=True):
        self._path = os.path.join(directory, "access_tokens.db")
        self._is_private = is_private

    def has_valid(self, key):
        """True when a token is cached under the key that will last a few minutes yet."""
        with self._open() as database:
            rows = database.execute(
                "SELECT token_expiry FROM access_tokens WHERE account_id = ?", (key,)
            )
            expiry = next((row[0] for row in rows), None)
        return expiry is not None and str(expiry) > _timestamp(time.time() + _TOKEN_MARGIN)

    def store(self, key, token):
        expiry = _timestamp(time.time() + _TOKEN_LIFE)
        with self._open() as database:
            database.execute(
                "REPLACE INTO access_tokens VALUES (?, ?, ?, NULL, NULL)", (key, token, expiry)
            )

    def _open(self):
        if self._is_private:
            touch_private(self._path)
        return _database(self._path, _TOKENS)


class ConfigurationStore:
    """What gcloud remembers for one configuration, in `directory`/NAME_configs.db."""

    def __init__(self, directory, name):
        self.path = os.path.join(directory, f"{name}_configs.db")

    def remember(self, *attributes):
        """Stores the attributes that are not there yet."""
        values = {"cred_token_store_formatted": "1", "client_arch": "x86_64"}
        with _database(self.path, _CONFIG) as database:
            known = {row[0] for row in database.execute("SELECT config_attr FROM config")}
            for attribute in attributes:
                if attribute not in known:
                    database.execute(
                        "INSERT OR IGNORE INTO config VALUES (?, ?)", (attribute, values[attribute])
                    )


def _timestamp(seconds):
    """Returns the point in time as the database has it: UTC, sortable as a text."""
    fraction = int(seconds % 1 * 1e6)
    return time.strftime("%Y-%m-%d %H:%M:%S.", time.gmtime(seconds)) + f"{fraction:06d}"
