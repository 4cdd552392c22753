# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""`gcloud auth application-default login`, `revoke` and `set-quota-project`."""

import os

from .. import adc, quota, signin
from ..errors import GcloudError
from ..world import new_token


def login(session, arguments):
    """Signs a user in and writes the credentials, impersonating ones where that is asked for."""
    service_account = arguments["--impersonate-service-account"] or session.property(
        "auth", "impersonate_service_account"
    )
    session.configuration_store().remember("client_arch")
    user = signin.sign_in(session)
    content = adc.user_content({**signin.client(), "refresh_token": new_token("refresh", user)})
    if service_account:
        adc.write(session, adc.impersonating_content(content, service_account))
        adc.announce_saved(session)
        return
    adc.write(session, content)
    adc.announce_saved(session)
    _add_active_project(session, content)


def set_quota_project(session, arguments):
    """Writes the file twice: without any quota project, then with the new or the old one."""
    project = arguments["QUOTA_PROJECT_ID"]
    content = _user_content_on_file(session)
    adc.write(session, adc.user_content(content))
    if project == "":
        raise GcloudError(
            "value for field [projectId] in collection [cloudresourcemanager.projects] "
            "is required but was not provided"
        )
    if not quota.may_bill(session, content, project):
        _write_other_quota_project(session, content)
        raise GcloudError(
            f'Cannot add the project "{project}" to application default credentials (ADC) as a '
            "quota project because the account in ADC does not have the "
            '"serviceusage.services.use" permission on this project.'
        )
    adc.write(session, adc.user_content(content, project))
    adc.announce_saved(session)
    quota.announce(session, project)


def revoke(session, _arguments):
    """Deletes the file, where that can be done; only a user's credentials are really revoked."""
    content = adc.load(session)
    if content is None:
        session.err("Application Default Credentials have not been set up, nothing to revoke.\n")
        return
    if content["type"] == adc.SERVICE_ACCOUNT:
        raise GcloudError(
            "The given credential file is a service account credential, and cannot be revoked."
        )
    if content["type"] == adc.USER:
        session.configuration_store().remember("client_arch")
        if not session.api.revoke(content["refresh_token"]):
            raise GcloudError("('invalid_token', 'Token expired or revoked')")
    os.remove(adc.path(session))
    if content["type"] == adc.USER:
        session.err("Credentials revoked.\n")
    else:
        session.warn(
            f"The credentials stored in: [{adc.path(session)}] are not revocable from the server "
            "but have been deleted from the file system."
        )


def _user_content_on_file(session):
    content = adc.load(session)
    if content is None:
        raise GcloudError(
            "Application default credentials have not been set up. "
            "Run $ gcloud auth application-default login to set it up first."
        )
    if content["type"] != adc.USER:
        raise GcloudError(
            "The application default credentials are not user credentials, "
            "quota project cannot be added."
        )
    return content


def _write_other_quota_project(session, content):
    """Writes the credentials with the quota project that they had, else with the active one."""
    project = content.get("quota_project_id") or session.property("core", "project")
    if project:
        adc.write(session, adc.user_content(content, project))
        return
    session.warn(
        "Cannot find a project to insert into application default credentials (ADC) as a quota "
        "project.\nRun $gcloud auth application-default set-quota-project to insert a quota "
        "project to ADC."
    )


def _add_active_project(session, content):
    """Makes the active project the quota project of fresh credentials, if that may be."""
    project = session.property("core", "project")
    remedy = "Run $ gcloud auth application-default set-quota-project to add a quota project."
    if not project:
        session.warn(
            "\nCannot find a quota project to add to ADC. You might receive a "
            f'"quota exceeded" or "API not enabled" error. {remedy}'
        )
    elif quota.may_bill(session, content, project):
        adc.write(session, adc.user_content(content, project))
        quota.announce(session, project)
    else:
        session.warn(
            f'\nCannot add the project "{project}" to ADC as the quota project because the account '
            'in ADC does not have the "serviceusage.services.use" permission on this project. You '
            f'might receive a "quota_exceeded" or "API not enabled" error. {remedy}'
        )
