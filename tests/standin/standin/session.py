# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""What one run of the stand-in works with: directory, properties, world, outputs."""

import os

from .api import Api
from .configurations import Configurations
from .databases import ConfigurationStore, CredentialStore, TokenStore
from .faults import Faults
from .journal import Journal
from .output import Output
from .pace import Pace
from .properties import from_environment, variable
from .world import World

_DATA = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "data")


class Session:
    """The surroundings of one command. command_words: as in "projects list"."""

    def __init__(self, environ, command_words):
        self.environ = environ
        self.directory = configuration_directory(environ)
        self.faults = Faults(environ.get("TORVI_STANDIN_FAULT", ""), command_words)
        journal = Journal(environ.get("TORVI_STANDIN_JOURNAL", ""))
        self.output = Output(self.faults, journal)
        slow = self.faults.get("slow")
        self.pace = Pace(
            float(environ.get("TORVI_STANDIN_PACE") or 0),
            None if slow is None else float(slow or 2),
        )
        self.world = World.load(
            environ.get("TORVI_STANDIN_WORLD") or os.path.join(_DATA, "world.json")
        )
        self.api = Api(self.world, self.faults, self.pace, journal)
        self.configurations = Configurations(
            self.directory, environ.get("CLOUDSDK_ACTIVE_CONFIG_NAME", ""), self.faults
        )
        self.credentials = CredentialStore(self.directory)
        self.tokens = TokenStore(self.directory)
        self.log = None

    def properties(self, configuration=None):
        """Returns {(section, property): value} in force with that configuration."""
        name = configuration or self.configurations.active()
        return {
            **self.world.installation(),
            **self.configurations.file(name).values(),
            **from_environment(self.environ),
        }

    def property(self, section, key):
        """Returns one property in force, or None."""
        value = self.environ.get(variable(section, key))
        if value is None:
            name = self.configurations.active()
            value = self.configurations.file(name).values().get((section, key))
        if value is None:
            value = self.world.installation().get((section, key))
        return value

    def configuration_store(self):
        return ConfigurationStore(self.directory, self.configurations.active())

    def out(self, text):
        """Writes to standard output and to the log."""
        self.log.shown(text)
        self.output.out(text)

    def err(self, text):
        """Writes to standard error and to the log."""
        self.log.shown(text)
        self.output.err(text)

    def warn(self, text):
        self.err(f"WARNING: {text}\n")


def configuration_directory(environ):
    """Returns gcloud's configuration directory; an empty CLOUDSDK_CONFIG counts as it stands."""
    directory = environ.get("CLOUDSDK_CONFIG")
    if directory is not None:
        return directory
    return os.path.join(os.path.expanduser("~"), ".config", "gcloud")


def data_file(name):
    """Returns the path of one of the stand-in's own files."""
    return os.path.join(_DATA, name)
