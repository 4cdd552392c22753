# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The requests to Google's servers, answered from the world, with the faults of the run.

Every request is noted in the journal. `url` is the path with its query, without the host.
"""

import os

from .errors import Crash, HttpFailure, refresh_error

TOKEN_HOST = "oauth2.googleapis.com"
MANAGER_HOST = "cloudresourcemanager.googleapis.com"
IAM_HOST = "iam.googleapis.com"
CREDENTIALS_HOST = "iamcredentials.googleapis.com"

_TRIES = 5
_EXPIRED = (
    "('invalid_grant: Token has been expired or revoked.', {'error': 'invalid_grant', "
    "'error_description': 'Token has been expired or revoked.'})"
)
_STATUS_BODIES = {
    403: "The caller does not have permission",
    500: '{"error": {"code": 500, "message": "Internal error encountered.", "status": "INTERNAL"}}',
    503: "The service is currently unavailable.",
}


class Api:
    """One run's connection to the servers."""

    def __init__(self, world, faults, pace, journal):
        self.world = world
        self._faults = faults
        self._pace = pace
        self._journal = journal

    def refresh(self, user, grant="refresh_token"):
        """Gets an access token. user: None for a token that the servers do not know."""
        self._reach_token_host("/token")
        if user is None or self.world.is_revoked(user) or self._faults.get("expired") is not None:
            for _ in range(2):
                self._note("POST", TOKEN_HOST, "/token", 400, user, grant=grant)
            raise refresh_error(_EXPIRED)
        self._note("POST", TOKEN_HOST, "/token", 200, user, grant=grant)

    def exchange_code(self, code):
        """Trades the code of a browser sign-in for a user, or returns None if it is refused."""
        if self.network_error(TOKEN_HOST, "/token"):
            raise ConnectionError
        refused = self._faults.get("refuse") is not None
        user = None if refused else self.world.user_of_code(code)
        status = 400 if refused else 200
        self._note("POST", TOKEN_HOST, "/token", status, user, grant="authorization_code")
        return user

    def revoke(self, refresh_token):
        """Revokes the token; returns False when the server says that it was revoked before."""
        path = f"/revoke?token={refresh_token}"
        self._reach_token_host(path)
        user = self.world.user_of_token(refresh_token)
        known = user is not None and not self.world.is_revoked(user)
        known = known and self._faults.get("expired") is None
        self._note("POST", TOKEN_HOST, path, 200 if known else 400, user)
        return known

    def impersonate(self, user, service_account):
        """Gets an access token for the service account; True when the user may do that."""
        path = f"/v1/projects/-/serviceAccounts/{service_account}:generateAccessToken"
        self._reach_service(CREDENTIALS_HOST, path)
        allowed = self.world.may_impersonate(user, service_account)
        self._note("POST", CREDENTIALS_HOST, path, 200 if allowed else 403, user)
        return allowed

    def call(self, method, host, url, user, answer):
        """Makes a request of a service. answer: returns what the server sends.

        Raises HttpFailure for an answer that is no success, Crash without a network.
        """
        self._reach_service(host, url)
        status = int(self._faults.get("api") or 0)
        if status:
            for _ in range(_TRIES if status >= 500 else 1):
                self._note(method, host, url, status, user)
            if status >= 500:
                self._pace.retries()
            raise HttpFailure(status, f"https://{host}{url}", _STATUS_BODIES.get(status, ""))
        try:
            result = answer()
        except HttpFailure as failure:
            self._note(method, host, url, failure.status, user)
            raise
        self._note(method, host, url, 200, user)
        return result

    def network_error(self, host, path):
        """Returns what the HTTP library says without a network, None when there is one."""
        start = (
            f"HTTPSConnectionPool(host='{host}', port=443): "
            f"Max retries exceeded with url: {path} "
        )
        connection = f"<urllib3.connection.HTTPSConnection object at 0x7f{os.urandom(5).hex()}>"
        if self._faults.get("offline") is not None:
            return start + (
                f'(Caused by NameResolutionError("{connection}: Failed to resolve '
                f"'{host}' ([Errno -3] Temporary failure in name resolution)\"))"
            )
        if self._faults.get("proxy-refused") is not None:
            return start + (
                "(Caused by ProxyError('Unable to connect to proxy', NewConnectionError("
                f"'{connection}: Failed to establish a new connection: "
                "[Errno 111] Connection refused')))"
            )
        return None

    def _reach_token_host(self, path):
        if error := self.network_error(TOKEN_HOST, path):
            raise refresh_error(error)

    def _reach_service(self, host, path):
        error = self.network_error(host, path)
        if error is None:
            return
        seconds = self._faults.get("offline") or self._faults.get("proxy-refused")
        self._pace.retries(float(seconds) if seconds else None)
        offline = self._faults.get("offline") is not None
        raise Crash("ConnectionError" if offline else "ProxyError", error)

    def _note(self, method, host, path, status, account, **more):
        self._faults.strike("request")
        self._pace.request()
        self._journal.request(
            method=method, host=host, path=path, status=status, account=account, **more
        )
