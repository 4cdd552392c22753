# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The quota project of application default credentials: who may bill to which project."""

from . import adc
from .api import MANAGER_HOST
from .credentials import acting_as, caller, impersonate, impersonated
from .databases import TokenStore
from .errors import GcloudError, HttpFailure


def may_bill(session, content, project):
    """Asks whether the project may be the quota project of these credentials of a user.

    Asks as that user; where the configuration impersonates, the user asks as the service account.
    """
    token = content["refresh_token"]
    user = session.world.user_of_token(token)
    session.configuration_store().remember("client_arch")
    _get_token(session, token, user)
    service_account = impersonated(session)
    if service_account:
        acting = (
            f"This command is authenticated as None using the credentials in {adc.path(session)}, "
            "specified by the [auth/credential_file_override] property. Impersonation is used to "
            f"impersonate {service_account}"
        )
        impersonate(session, service_account, user, lambda: session.api.refresh(user), acting)
    return _ask(session, service_account or user, project)


def _get_token(session, refresh_token, user):
    """Gets an access token unless one is cached."""
    import hashlib  # Only here: most commands never need it.

    key = hashlib.sha256(refresh_token.encode()).hexdigest()
    tokens = TokenStore(session.directory, is_private=False)
    if not tokens.has_valid(key):
        session.api.refresh(user)
        tokens.store(key, f"stand-in-token-{user}")


def _ask(session, user, project):
    """Returns True when the user may use the project's quota. Raises when it is not visible."""
    name = project.replace(" ", "%20")
    url = f"/v1/projects/{name}:testIamPermissions?alt=json"

    def answer():
        found = session.world.project(project, user)
        if found is None:
            raise HttpFailure(403, url, "The caller does not have permission")
        return session.world.may_bill(found, user)

    try:
        return session.api.call("POST", MANAGER_HOST, url, user, answer)
    except HttpFailure as failure:
        raise GcloudError(
            f"[{caller(session)}] does not have permission to access projects instance "
            f"[{name}:testIamPermissions] (or it may not exist): {failure.body}. "
            f"{acting_as(session)}"
        ) from failure


def announce(session, project):
    session.err(
        f'\nQuota project "{project}" was added to ADC which can be used by Google client '
        "libraries for billing and quota. Note that some services may still bill the project "
        "owning the resource.\n"
    )
