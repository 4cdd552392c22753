# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The named configurations: files `config_NAME` and the file that says which one is active."""

import os
import re

from .errors import GcloudError, LoadFailure
from .files import read_text, rewrite
from .properties import PropertyFile

NONE = "NONE"
_VALID_NAME = re.compile(r"^[a-z][-a-z0-9]*$")


class Configurations:
    """The configurations below one configuration directory.

    override: the name that the environment sets as active, empty when it sets none.
    """

    def __init__(self, directory, override, faults):
        self._directory = directory
        self._override = override
        self._faults = faults

    def prepare(self):
        """Makes "default" active where nothing is, as any command of gcloud does when it starts.

        A configuration of that name loses all its properties. This happens too when the file says
        something impossible, but not when it is empty, and never when the environment decides.
        """
        name = self._text()
        if self._override or (name is not None and _is_possible(name)):
            return
        os.makedirs(os.path.join(self._directory, "configurations"), exist_ok=True)
        rewrite(self.path("default"), "")
        rewrite(self._active_path(), "default")

    def active(self):
        """Returns the name in force; it may be NONE or name no configuration."""
        return self._override or self.active_in_file()

    def active_in_file(self):
        """Returns what the file says. A line feed at its end is part of the name."""
        return self._text() or "default"

    def names(self):
        """Returns the names of all configurations, sorted."""
        try:
            entries = os.listdir(os.path.join(self._directory, "configurations"))
        except FileNotFoundError:
            return []
        prefix = "config_"
        names = [entry[len(prefix) :] for entry in entries if entry.startswith(prefix)]
        return sorted(name for name in names if _VALID_NAME.match(name))

    def path(self, name):
        return os.path.join(self._directory, "configurations", f"config_{name}")

    def file(self, name):
        """Returns the properties of the configuration, none when it does not exist."""
        return PropertyFile(self.path(name))

    def file_to_change(self):
        """Returns the active configuration's file, or raises when there is none to write to."""
        name = self.active()
        if name == NONE:
            raise GcloudError(f"Properties in configuration [{NONE}] cannot be set.")
        if not os.path.exists(self.path(name)):
            raise GcloudError(
                f"Cannot set property in configuration [{name}], it does not exist."
            )
        return self.file(name)

    def check_name(self, name, may_be_none):
        if _VALID_NAME.match(name) or (may_be_none and name == NONE):
            return
        raise GcloudError(
            f"Invalid name [{name}] for a configuration.  Except for special cases ({NONE}), "
            "configuration names start with a lower case letter and contain only lower case "
            "letters a-z, digits 0-9, and hyphens '-'."
        )

    def create(self, name):
        self.check_name(name, may_be_none=False)
        if name in self.names():
            raise GcloudError(f"Cannot create configuration [{name}], it already exists.")
        rewrite(self.path(name), "")

    def activate(self, name):
        self.check_name(name, may_be_none=True)
        if name != NONE and name not in self.names():
            raise GcloudError(f"Cannot activate configuration [{name}], it does not exist.")
        rewrite(self._active_path(), name, self._faults)
        self.invalidate_caches()

    def delete(self, name):
        """Removes the file; the caller has checked that this may be done."""
        os.remove(self.path(name))

    def invalidate_caches(self):
        """Rewrites the empty file by which other tools of the SDK notice a change."""
        rewrite(os.path.join(self._directory, "config_sentinel"), "")

    def _text(self):
        try:
            return read_text(self._active_path())
        except UnicodeDecodeError as error:
            raise LoadFailure(str(error)) from error

    def _active_path(self):
        return os.path.join(self._directory, "active_config")


def _is_possible(name):
    return name in ("", NONE) or _VALID_NAME.match(name) is not None
