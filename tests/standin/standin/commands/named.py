# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""`gcloud config configurations create`, `activate`, `delete` and `list`."""

import json
import os

from .. import adc
from ..databases import ConfigurationStore
from ..errors import GcloudError
from ..properties import known_properties


def create(session, arguments):
    name = arguments["CONFIGURATION_NAME"]
    session.configurations.create(name)
    session.err(f"Created [{name}].\n")
    session.configurations.activate(name)
    session.err(f"Activated [{name}].\n")


def activate(session, arguments):
    name = arguments["CONFIGURATION_NAME"]
    session.configurations.activate(name)
    session.err(f"Activated [{name}].\n")
    adc.warn_of_other_quota_project(session, session.property("core", "project"))


def delete(session, arguments):
    names = arguments["CONFIGURATION_NAMES"]
    configurations = session.configurations
    if configurations.active() in names:
        raise GcloudError(
            "Deleting named configuration failed because configuration "
            f"[{configurations.active()}] is set as active.  Use `gcloud config configurations "
            "activate` to change the active configuration."
        )
    session.err("The following configurations will be deleted:\n")
    session.err("".join(f" - {name}\n" for name in names))
    for name in names:
        _check_may_be_deleted(configurations, name)
        _delete(session, name)


def list_all(session, _arguments):
    configurations = session.configurations
    listed = [
        {
            "is_active": name == configurations.active(),
            "name": name,
            "properties": _with_unset_properties(configurations.file(name).values()),
        }
        for name in configurations.names()
    ]
    session.out(json.dumps(listed, indent=2, sort_keys=True, ensure_ascii=False) + "\n")


def _check_may_be_deleted(configurations, name):
    if name not in configurations.names():
        raise GcloudError(f"Cannot delete configuration [{name}], it does not exist.")
    if name == configurations.active_in_file():
        raise GcloudError(
            f"Cannot delete configuration [{name}], it is currently set as the active "
            "configuration in your gcloud properties."
        )


def _delete(session, name):
    session.configurations.delete(name)
    store = ConfigurationStore(session.directory, name)
    if os.path.exists(store.path):
        os.remove(store.path)
    # gcloud fails to forget a cached description that it never had, and says so each time.
    universe = "googleapis.com"
    cache = "hidden_gcloud_config_universe_descriptor_data_cache"
    ConfigurationStore(session.directory, cache).remember()
    session.warn(
        f"Failed to delete universe descriptor for universe domain {universe}: A SQLite error "
        "occurred while querying the universe descriptor with universe domain "
        f"[{universe}]. Request exception: Could not delete attribute [{universe}] from config "
        f"store [{cache}]."
    )
    session.err(f"Deleted [{name}].\n")


def _with_unset_properties(values):
    return {
        section: {key: values.get((section, key)) for key in keys}
        for section, keys in known_properties().items()
    }
