# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The file of the application default credentials: reading, checking, writing."""

import json
import os

from .errors import Crash, refresh_error
from .files import read_text, rewrite_private

USER = "authorized_user"
SERVICE_ACCOUNT = "service_account"
IMPERSONATED = "impersonated_service_account"
UNIVERSE = "googleapis.com"

_TYPES = (
    USER,
    SERVICE_ACCOUNT,
    "external_account",
    "external_account_authorized_user",
    IMPERSONATED,
    "gdch_service_account",
)
_REQUIRED = {
    USER: ("client_id", "client_secret", "refresh_token"),
    SERVICE_ACCOUNT: ("client_email", "token_uri"),
}
_USER_MEMBERS = ("client_id", "client_secret", "refresh_token")


def path(session):
    return os.path.join(session.directory, "application_default_credentials.json")


def load(session):
    """Returns the file's JSON object, or None when there is no file.

    Raises when the file is not what gcloud can read as credentials.
    """
    text = read_text(path(session))
    if text is None:
        return None
    try:
        content = json.loads(text)
    except json.JSONDecodeError as error:
        raise refresh_error(
            f"('File {path(session)} is not a valid json file.', JSONDecodeError('{error}'))"
        ) from error
    if not isinstance(content, dict):
        name = type(content).__name__
        raise Crash("AttributeError", f"'{name}' object has no attribute 'get'")
    if content.get("type") not in _TYPES:
        raise refresh_error(
            f"The file {path(session)} does not have a valid type. "
            f"Type is {content.get('type')}, expected one of {_TYPES}."
        )
    _check_members(session, content)
    return content


def _check_members(session, content):
    """Raises when the credentials lack what their type needs."""
    kind = content["type"]
    required = _REQUIRED.get(kind, ())
    missing = ", ".join(sorted(name for name in required if name not in content))
    detail = None
    if missing:
        error = "ValueError('Authorized user" if kind == USER else "MalformedError('Service account"
        detail = f"{error} info was not in the expected format, missing fields {missing}.')"
    url = content.get("service_account_impersonation_url", "")
    if kind == IMPERSONATED and not url.endswith(":generateAccessToken"):
        detail = f"InvalidValue('Cannot extract target principal from {url}')"
    if detail is not None:
        name = kind.replace("_", " ")
        raise refresh_error(f"('Failed to load {name} credentials from {path(session)}', {detail})")


def write(session, content):
    """Rewrites the file in place: members sorted, no line feed at the end, mode 0600."""
    text = json.dumps(content, indent=2, sort_keys=True, ensure_ascii=False)
    rewrite_private(path(session), text, session.faults)


def user_content(old, quota_project=None):
    """Returns the credentials of a user, newly put together from `old`, as gcloud writes them."""
    content = {key: old[key] for key in _USER_MEMBERS if key in old}
    if quota_project:
        content["quota_project_id"] = quota_project
    return {**content, "account": "", "type": USER, "universe_domain": UNIVERSE}


def warn_of_other_quota_project(session, project):
    """Warns when the file's quota project is not `project`. Reads, and so checks, the file."""
    content = load(session)
    if content is None or project is None or content.get("quota_project_id") == project:
        return
    session.warn(
        "Your active project does not match the quota project in your local Application Default "
        "Credentials file. This might result in unexpected quota issues.\n\nTo update your "
        "Application Default Credentials quota project, use the `gcloud auth application-default "
        "set-quota-project` command."
    )


def announce_saved(session):
    session.err(f"\nCredentials saved to file: [{path(session)}]\n")
    session.err(
        "\nThese credentials will be used by any library that requests "
        "Application Default Credentials (ADC).\n"
    )


def impersonating_content(source, service_account):
    """Returns credentials that act as the service account by the means of `source`."""
    return {
        "delegates": [],
        "service_account_impersonation_url": (
            "https://iamcredentials.googleapis.com/v1/projects/-/serviceAccounts/"
            f"{service_account}:generateAccessToken"
        ),
        "source_credentials": source,
        "type": IMPERSONATED,
    }
