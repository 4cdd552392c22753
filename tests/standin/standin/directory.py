# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Builds configuration directories as gcloud would have left them, without signing in."""

import json
import os

from .configurations import Configurations
from .databases import ConfigurationStore, CredentialStore, TokenStore
from .faults import Faults
from .files import rewrite, rewrite_private
from .world import new_token

_USER_SCOPES = [
    "openid",
    "https://www.googleapis.com/auth/userinfo.email",
    "https://www.googleapis.com/auth/cloud-platform",
    "https://www.googleapis.com/auth/appengine.admin",
    "https://www.googleapis.com/auth/sqlservice.login",
    "https://www.googleapis.com/auth/compute",
    "https://www.googleapis.com/auth/accounts.reauth",
]
_CLIENT = {
    "client_id": "000000000000-example.apps.googleusercontent.com",
    "client_secret": "not-a-secret-client-secret",
}
_NO_KEY = "-----FAKE KEY, NOT A KEY-----\nAAAA\n-----END FAKE KEY-----\n"


class Directory:
    """One configuration directory being built. Active is "default" unless told otherwise."""

    def __init__(self, path):
        self.path = path
        os.makedirs(path, exist_ok=True)
        self._configurations = Configurations(path, "", Faults("", ""))

    def add_configuration(self, name, **sections):
        """Writes the configuration; each section is a dictionary of properties."""
        self._configurations.prepare()
        text = "".join(
            f"[{section}]\n" + "".join(f"{key} = {value}\n" for key, value in keys.items()) + "\n"
            for section, keys in sections.items()
        )
        rewrite(self._configurations.path(name), text)

    def activate(self, name):
        self._configurations.activate(name)
        ConfigurationStore(self.path, name).remember("cred_token_store_formatted")

    def add_user(self, email, token=None):
        """Stores a user's credentials. token: the refresh token, by default a new one."""
        content = {
            **_CLIENT,
            "refresh_token": token or new_token("refresh", email),
            "revoke_uri": "https://oauth2.googleapis.com/revoke",
            "scopes": _USER_SCOPES,
            "token_uri": "https://oauth2.googleapis.com/token",
            "type": "authorized_user",
            "universe_domain": "googleapis.com",
        }
        self._add_account(email, content)

    def add_service_account(self, email, key=_NO_KEY):
        """Stores a service account's credentials. key: its private key in PEM form."""
        self._add_account(email, {**service_account_key(email, key), "type": "service_account"})

    def cache_tokens(self, *accounts):
        """Stores an access token for each account, as after its last use."""
        store = TokenStore(self.path)
        for account in accounts:
            store.store(account, f"stand-in-token-{account}")

    def write_adc(self, content):
        """Writes the application default credentials. content: a JSON object, or any text."""
        if not isinstance(content, str):
            content = json.dumps(content, indent=2, sort_keys=True)
        path = os.path.join(self.path, "application_default_credentials.json")
        rewrite_private(path, content)

    def _add_account(self, email, content):
        CredentialStore(self.path).store(email, json.dumps(content, indent=2, sort_keys=True))


def service_account_key(email, key=_NO_KEY):
    """Returns the content of a service account's key file, usable as ADC file too."""
    return {
        "auth_uri": "https://accounts.google.com/o/oauth2/auth",
        "client_email": email,
        "client_id": "107800000000000000001",
        "private_key": key,
        "private_key_id": "not-a-secret-private-key-id",
        "project_id": email.partition("@")[2].partition(".")[0],
        "token_uri": "https://oauth2.googleapis.com/token",
        "type": "service_account",
        "universe_domain": "googleapis.com",
    }


def user_adc(email, quota_project=None):
    """Returns a user's application default credentials."""
    content = {
        **_CLIENT,
        "account": "",
        "refresh_token": new_token("refresh", email),
        "type": "authorized_user",
        "universe_domain": "googleapis.com",
    }
    return content if quota_project is None else {**content, "quota_project_id": quota_project}


def external_adc(service_account):
    """Returns credentials of a workload outside Google that acts as the service account."""
    return {
        "audience": (
            "//iam.googleapis.com/projects/415104041264/locations/global/"
            "workloadIdentityPools/ci-pool/providers/ci"
        ),
        "credential_source": {"file": "/var/run/ci-token"},
        "service_account_impersonation_url": (
            "https://iamcredentials.googleapis.com/v1/projects/-/serviceAccounts/"
            f"{service_account}:generateAccessToken"
        ),
        "subject_token_type": "urn:ietf:params:oauth:token-type:jwt",
        "token_url": "https://sts.googleapis.com/v1/token",
        "type": "external_account",
    }
