# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Who a command runs as: the account in force, its tokens, impersonation."""

import json

from .errors import LOG_IN_AGAIN, ImpersonationDenied, NoCredentials

_SERVICE_ACCOUNT_SUFFIX = ".gserviceaccount.com"


def is_service_account(account):
    return account.endswith(_SERVICE_ACCOUNT_SUFFIX)


def active_account(session):
    """Returns core/account, or raises NoCredentials when nobody is signed in."""
    account = session.property("core", "account")
    if not account:
        raise NoCredentials(
            f"You do not currently have an active account selected.\n{LOG_IN_AGAIN}"
        )
    return account


def load(session, account):
    """Returns the account's stored credentials, or raises NoCredentials."""
    session.configuration_store().remember("cred_token_store_formatted")
    stored = session.credentials.load(account)
    session.tokens.has_valid(account)  # gcloud opens both files before it looks at either.
    if stored is None:
        raise NoCredentials(
            f"Your current active account [{account}] does not have any valid credentials\n"
            "Please run:\n\n  $ gcloud auth login\n\nto obtain new credentials.\n\n"
            "For service account, please activate it first:\n\n"
            "  $ gcloud auth activate-service-account ACCOUNT"
        )
    return json.loads(stored)


def identity(session):
    """Returns who the API sees: the impersonated account if one is configured, else the account.

    Gets the tokens that this needs, and warns when it impersonates.
    """
    session.configuration_store().remember("client_arch")
    account = active_account(session)
    service_account = impersonated(session)
    if service_account:
        impersonate(
            session,
            service_account,
            account,
            lambda: refresh(session, account, load(session, account)),
        )
        return service_account
    credentials = load(session, account)
    if not session.tokens.has_valid(account):
        refresh(session, account, credentials)
    return account


def open_stores(session):
    """Opens the databases as gcloud does when it only wants to know which accounts there are."""
    accounts = session.credentials.accounts()
    session.configuration_store().remember("cred_token_store_formatted")
    session.tokens.has_valid("")
    return accounts


def refresh(session, account, credentials):
    """Gets a new access token for the account's own credentials and caches it."""
    if is_service_account(account):
        session.api.refresh(account, "urn:ietf:params:oauth:grant-type:jwt-bearer")
    else:
        owner = session.world.user_of_token(credentials.get("refresh_token", ""))
        session.api.refresh(owner)
    session.tokens.store(account, f"stand-in-token-{account}")


def caller(session):
    """Returns whom gcloud names as the one who was refused something."""
    return impersonated(session) or session.property("core", "account")


def impersonated(session):
    """Returns the service account that the configuration names, or None."""
    return session.property("auth", "impersonate_service_account") or None


def acting_as(session):
    """Returns the sentences that end the API's refusals, without the last full stop."""
    text = (
        f"This command is authenticated as {session.property('core', 'account')} which is the "
        "active account specified by the [core/account] property"
    )
    service_account = impersonated(session)
    if service_account:
        text += f". Impersonation is used to impersonate {service_account}"
    return text


def impersonate(session, service_account, user, get_token, acting=None):
    """Gets tokens with which `user` acts as the service account.

    get_token: gets the user's own token. acting: the sentences of acting_as(), if other ones.
    gcloud builds such credentials twice, and warns and asks each time.
    """
    for _ in range(2):
        session.warn(
            "This command is using service account impersonation. "
            f"All API calls will be executed as [{service_account}]."
        )
        get_token()
        if not session.api.impersonate(user, service_account):
            raise ImpersonationDenied(
                f"PERMISSION_DENIED: Failed to impersonate [{service_account}]. Make sure the "
                "account that's trying to impersonate it has access to the service account itself "
                'and the "roles/iam.serviceAccountTokenCreator" role. Permission '
                "'iam.serviceAccounts.getAccessToken' denied on resource (or it may not exist). "
                f"{acting or acting_as(session)}. "
            )
