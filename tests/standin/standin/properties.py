# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""gcloud's properties: the files, the environment that overrides them, the known names."""

import configparser
import functools
import io
import json
import os

from .errors import GcloudError, LoadFailure
from .files import read_text, rewrite

_KNOWN_NAMES = os.path.join(os.path.dirname(os.path.dirname(__file__)), "data", "properties.json")

# Properties that gcloud's own list leaves out although it knows them.
_HIDDEN = {
    ("core", "check_gce_metadata"),
    ("metrics", "environment"),
    ("survey", "disable_prompts"),
}


@functools.cache
def known_properties():
    """Returns the sections and their properties, in the order in which gcloud lists them."""
    with open(_KNOWN_NAMES, encoding="utf-8") as file:
        return json.load(file)


def is_known(section, key):
    return key in known_properties().get(section, ()) or (section, key) in _HIDDEN


def split_name(name):
    """Returns (section, property) of "section/property" or of a core property's bare name."""
    section, slash, key = name.rpartition("/")
    section = section if slash else "core"
    if section not in known_properties() and section not in {hidden for hidden, _ in _HIDDEN}:
        raise GcloudError(f'Section "{section}" does not exist.')
    if not is_known(section, key):
        raise GcloudError(f"Section [{section}] has no property [{key}].")
    return section, key


def variable(section, key):
    """Returns the name of the environment variable that overrides the property."""
    return f"CLOUDSDK_{section}_{key}".upper()


def from_environment(environ):
    """Returns {(section, property): value} of all overriding variables; empty values count."""
    found = {}
    names = [(section, key) for section, keys in known_properties().items() for key in keys]
    for section, key in (*names, *_HIDDEN):
        value = environ.get(variable(section, key))
        if value is not None:
            found[section, key] = value
    return found


class PropertyFile:
    """One file of properties. A missing file has none.

    Raises LoadFailure when the file is no property file.
    """

    def __init__(self, path):
        self._path = path
        self._parser = configparser.ConfigParser()
        try:
            self._parser.read_string(read_text(path) or "", source=path)
            self._values = {
                (section, key): value
                for section in self._parser.sections()
                for key, value in self._parser.items(section)
            }
        except (configparser.Error, UnicodeDecodeError) as error:
            raise LoadFailure(str(error)) from error

    def values(self):
        """Returns {(section, property): value}."""
        return dict(self._values)

    def set(self, section, key, value, faults=None):
        """Sets the property and rewrites the file."""
        if not self._parser.has_section(section):
            self._parser.add_section(section)
        self._parser.set(section, key, value.replace("%", "%%"))
        self._save(faults)

    def unset(self, section, key, faults=None):
        """Removes the property, keeps its section; writes nothing when it was not set."""
        if (section, key) not in self._values:
            return
        self._parser.remove_option(section, key)
        self._save(faults)

    def _save(self, faults):
        text = io.StringIO()
        self._parser.write(text)
        rewrite(self._path, text.getvalue(), faults)
