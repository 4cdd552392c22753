# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""`gcloud config set`, `unset` and `list`."""

import json
import re

from .. import adc, credentials
from ..api import MANAGER_HOST
from ..errors import GcloudError, HttpFailure, ImpersonationDenied, NoCredentials
from ..properties import is_known, split_name, variable

_PROJECT_ID = re.compile(r"(?:[-a-z0-9.]+:)?[a-z0-9](?:[-a-z0-9]{0,61}[a-z0-9])?")
# What makes gcloud take an impossible id for a project's display name.
_PROJECT_NAME = re.compile(r"[A-Z]|.*[ '\"!]")
REMEDY = (
    "To set your project, run:\n\n  $ gcloud config set project PROJECT_ID\n\n"
    "or to unset it, run:\n\n  $ gcloud config unset project"
)


def set_property(session, arguments):
    section, key = split_name(arguments["SECTION/PROPERTY"])
    value = arguments["VALUE"]
    if (section, key) == ("core", "project"):
        _check_project(session, value)
    if (section, key) == ("core", "account"):
        credentials.open_stores(session)
    _warn_of_environment(session, section, key)
    session.configurations.file_to_change().set(section, key, value, session.faults)
    session.configurations.invalidate_caches()
    session.err(f"Updated property [{section}/{key}].\n")


def unset_property(session, arguments):
    section, key = split_name(arguments["SECTION/PROPERTY"])
    _warn_of_environment(session, section, key)
    session.configurations.file_to_change().unset(section, key, session.faults)
    session.configurations.invalidate_caches()
    session.err(f"Unset property [{section}/{key}].\n")


def list_properties(session, arguments):
    sections = {}
    for (section, key), value in session.properties(arguments["--configuration"]).items():
        if is_known(section, key):
            sections.setdefault(section, {})[key] = value
    session.out(json.dumps(sections, indent=2, sort_keys=True, ensure_ascii=False) + "\n")


def _warn_of_environment(session, section, key):
    name = variable(section, key)
    value = session.environ.get(name)
    if value is not None:
        session.warn(f"Property [{key}] is overridden by environment setting [{name}={value}]")


def _check_project(session, project):
    """Warns of a project that cannot be seen, refuses what is no project id at all."""
    adc.warn_of_other_quota_project(session, project)
    if session.property("core", "account"):
        _warn_if_not_visible(session, project)
    if project == "":
        raise GcloudError(
            f"The project property is set to the empty string, which is invalid.\n{REMEDY}"
        )
    if not _PROJECT_ID.fullmatch(project):
        if _PROJECT_NAME.match(project):
            reason = f"not the project name [{project}]"
        else:
            reason = f"[{project}] is not a valid project ID."
        raise GcloudError(
            f"The project property must be set to a valid project ID, {reason}\n{REMEDY}"
        )


def _warn_if_not_visible(session, project):
    if project == "":
        raise GcloudError(
            "value for field [projectId] in collection [cloudresourcemanager.projects] "
            "is required but was not provided"
        )
    try:
        user = credentials.identity(session)
    except (NoCredentials, ImpersonationDenied):
        session.warn(
            f"You do not appear to have access to project [{project}] or it does not exist."
        )
        return
    name = project.replace(" ", "%20")
    url = f"/v1/projects/{name}?alt=json"

    def answer():
        if session.world.project(project, user) is None:
            raise HttpFailure(403, url, "The caller does not have permission")

    try:
        session.api.call("GET", MANAGER_HOST, url, user, answer)
    except HttpFailure as failure:
        if failure.status == 503:
            session.warn(f"UNAVAILABLE: {failure.body}")
            return
        if failure.status != 403:
            raise
        session.warn(
            f"[{credentials.caller(session)}] does not have permission to access projects "
            f"instance [{name}] (or it may not exist): {failure.body}. "
            f"{credentials.acting_as(session)}"
        )
