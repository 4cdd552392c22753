# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The ways in which a command of gcloud ends badly, with the texts that gcloud then prints."""

FEEDBACK = [
    "\nIf you would like to report this issue, please run the following command:\n",
    "  gcloud feedback\n",
    "\nTo check gcloud for common problems, please run the following command:\n",
    "  gcloud info --run-diagnostics\n",
]

LOG_IN_AGAIN = (
    "Please run:\n\n  $ gcloud auth login\n\nto obtain new credentials.\n\n"
    "If you have already logged in with a different account, run:\n\n"
    "  $ gcloud config set account ACCOUNT\n\n"
    "to select an already authenticated account to use."
)


class GcloudError(Exception):
    """An expected failure: `ERROR: (gcloud.command) message`, exit code 1.

    hint: a line without prefix that gcloud writes before the error, or None.
    """

    def __init__(self, message, hint=None):
        super().__init__(message)
        self.message = message
        self.hint = hint


class UsageError(Exception):
    """A wrong command line, exit code 2. command: as in `gcloud.config.set`."""

    def __init__(self, command, message):
        super().__init__(message)
        self.command = command
        self.message = message


class Crash(Exception):
    """What gcloud calls a crash: `ERROR: gcloud crashed (kind): message`, exit code 1."""

    def __init__(self, kind, message):
        super().__init__(message)
        self.kind = kind
        self.message = message


class LoadFailure(Exception):
    """A property file that cannot be parsed: gcloud does not even start. Exit code 1."""


class HttpFailure(Exception):
    """An answer of the API that is no success. body: the server's own message."""

    def __init__(self, status, url, body):
        super().__init__(body)
        self.status = status
        self.url = url
        self.body = body


class NoCredentials(GcloudError):
    """The account has no credentials at all, or nobody is signed in."""


class ImpersonationDenied(GcloudError):
    """The account may not act as the service account that the configuration names."""


def refresh_error(detail):
    """Returns the error for tokens that could not be refreshed, whatever the reason."""
    return GcloudError(
        f"There was a problem refreshing your current auth tokens: {detail}\n{LOG_IN_AGAIN}"
    )
