# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""`gcloud auth print-identity-token`."""

import binascii
import json
import os
import time

from .. import credentials

_AUDIENCE = "32555940559.apps.googleusercontent.com"


def print_identity_token(session, _arguments):
    """Prints the account's own token; a configured impersonation is ignored."""
    account = credentials.active_account(session)
    stored = credentials.load(session, account)
    session.configuration_store().remember("client_arch")
    if credentials.is_service_account(account):
        session.api.refresh(account, "urn:ietf:params:oauth:grant-type:jwt-bearer+id")
    else:
        credentials.refresh(session, account, stored)
    session.out(_token(account) + "\n")


def _token(account):
    """Returns a token of the right form that nobody would accept."""
    now = int(time.time())
    claims = {
        "iss": "https://accounts.google.com",
        "aud": _AUDIENCE,
        "email": account,
        "email_verified": True,
        "iat": now,
        "exp": now + 3600,
    }
    header = {"alg": "RS256", "typ": "JWT"}
    parts = [json.dumps(header).encode(), json.dumps(claims).encode(), os.urandom(256)]
    return ".".join(_encoded(part) for part in parts)


def _encoded(data):
    text = binascii.b2a_base64(data, newline=False).decode()
    return text.rstrip("=").replace("+", "-").replace("/", "_")
