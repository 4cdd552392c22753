# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""`gcloud projects list`, `iam service-accounts list`, `auth list` and `version`."""

import json

from .. import credentials
from ..api import IAM_HOST, MANAGER_HOST
from ..errors import Crash, GcloudError, HttpFailure
from ..session import data_file
from .config import REMEDY

_LISTING_DENIED = "Permission 'iam.serviceAccounts.list' denied on resource (or it may not exist)"
_PROJECT_MISSING = (
    "The required property [project] is not currently set.\n"
    "It can be set on a per-command basis by re-running your command with the [--project] flag.\n\n"
    "You may set it for your current workspace by running:\n\n"
    "  $ gcloud config set project VALUE\n\n"
    "or it can be set temporarily by the environment variable [CLOUDSDK_CORE_PROJECT]"
)


def accounts(session, _arguments):
    stored = credentials.open_stores(session)
    active = session.property("core", "account")
    _print(
        session,
        [{"account": name, "status": "ACTIVE" if name == active else ""} for name in stored],
    )


def projects(session, _arguments):
    user = credentials.identity(session)
    found = []
    try:
        for token, page in session.world.pages_of(user):
            url = "/v1/projects?alt=json&filter=lifecycleState%3AACTIVE&pageSize=500"
            url += f"&pageToken={token}" if token else ""
            session.api.call("GET", MANAGER_HOST, url, user, lambda: None)
            found.extend(page)
    except HttpFailure as failure:
        if failure.status != 403:
            raise
        raise GcloudError(
            f"PERMISSION_DENIED: {failure.body}. {credentials.acting_as(session)}"
        ) from failure
    _print(session, found)


def service_accounts(session, arguments):
    """Prints an empty list also when it fails, unless nothing was asked at all."""
    project = arguments["--project"]
    if project is None:
        project = session.property("core", "project")
    if project == "":
        raise GcloudError(
            f"The project property is set to the empty string, which is invalid.\n{REMEDY}"
        )
    try:
        found = _service_accounts(session, project)
    except (GcloudError, HttpFailure, Crash):
        session.out("[]\n")
        raise
    _print(session, found)


def _service_accounts(session, project):
    if project is None:
        raise GcloudError(_PROJECT_MISSING)
    user = credentials.identity(session)
    url = f"/v1/projects/{project.replace(' ', '%20')}/serviceAccounts?alt=json&pageSize=100"

    def answer():
        found = session.world.project(project, user)
        if found is None or found.get("iamDisabled"):
            raise HttpFailure(403, url, "The caller does not have permission")
        if not session.world.may_list_service_accounts(found, user):
            raise HttpFailure(403, url, _LISTING_DENIED)
        return found.get("serviceAccounts", [])

    try:
        return session.api.call("GET", IAM_HOST, url, user, answer)
    except HttpFailure as failure:
        if failure.status != 403:
            raise
        raise _refusal(session, project, user, failure) from failure


def _refusal(session, project, user, failure):
    """Returns the error; asks first, in vain, whether to enable the API where it is disabled."""
    found = session.world.project(project, user) or {}
    reason, details = failure.body, ""
    if found.get("iamDisabled"):
        number = found["projectNumber"]
        session.err(
            f"API [iam.googleapis.com] not enabled on project [{number}]. Would you like \n"
            "to enable and retry (this will take a few minutes)? (y/N)?  "
        )
        session.err("\n")
        reason = (
            "Identity and Access Management (IAM) API has not been used in project "
            f"{number} before or it is disabled. Enable it by visiting https://console.developers."
            f"google.com/apis/api/iam.googleapis.com/overview?project={number} then retry. If you "
            "enabled this API recently, wait a few minutes for the action to propagate to our "
            "systems and retry"
        )
        details = _details(
            "googleapis.com",
            f"consumer: projects/{number}\n    service: iam.googleapis.com",
            "SERVICE_DISABLED",
        )
    elif reason == _LISTING_DENIED:
        details = _details(
            "iam.googleapis.com",
            "permission: iam.serviceAccounts.list",
            "IAM_PERMISSION_DENIED",
        )
    return GcloudError(
        f"[{credentials.caller(session)}] does not have permission to access projects "
        f"instance [{project}] (or it may not exist): {reason}. "
        f"{credentials.acting_as(session)}{details}"
    )


def _details(domain, metadata, reason):
    return (
        ".\n- '@type': type.googleapis.com/google.rpc.ErrorInfo\n"
        f"  domain: {domain}\n  metadata:\n    {metadata}\n  reason: {reason}"
    )


def version(session, _arguments):
    with open(data_file("version.json"), encoding="utf-8") as file:
        session.out(file.read())


def _print(session, items):
    session.out(json.dumps(items, indent=2, sort_keys=True, ensure_ascii=False) + "\n")
