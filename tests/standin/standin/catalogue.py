# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The commands that the stand-in plays."""

from .commands import config, defaults, identity, lists, named


def shown(name):
    """Returns how gcloud writes the name of a value, here of several values if it is a plural."""
    return f"{name} [{name} ...]" if name.endswith("S") else name


class Command:
    """One command. positionals: their names; a name in the plural takes all that are left.

    flags: those that it knows besides the ones allowed anywhere; each takes a value.
    optional, usage: what gcloud names besides, after a wrong use, as optional and as flags.
    """

    def __init__(self, words, run, positionals=(), flags=(), optional=None, usage=""):
        self.words = words
        self.run = run
        self.positionals = positionals
        self.flags = flags
        self.optional = optional
        self.usage = usage

    @property
    def name(self):
        return "gcloud." + self.words.replace(" ", ".")

    @property
    def synopsis(self):
        """Returns the line that gcloud prints after a wrong use."""
        names = "".join(f" {shown(name)}" for name in self.positionals)
        names += f" [{self.optional}]" if self.optional else ""
        flags = self.usage.replace("\n ", "\n" + 25 * " ")
        return (
            f"Usage: gcloud {self.words}{names} [optional flags]\n"
            f"  optional flags may be  {flags}"
        )


COMMANDS = [
    Command(
        "config set",
        config.set_property,
        ("SECTION/PROPERTY", "VALUE"),
        usage="--help | --installation",
    ),
    Command(
        "config unset",
        config.unset_property,
        ("SECTION/PROPERTY",),
        usage="--help | --installation",
    ),
    Command(
        "config list",
        config.list_properties,
        flags=("--configuration",),
        optional="SECTION/PROPERTY",
        usage="--all | --filter | --help | --limit | --sort-by",
    ),
    Command(
        "config configurations activate", named.activate, ("CONFIGURATION_NAME",), usage="--help"
    ),
    Command(
        "config configurations create",
        named.create,
        ("CONFIGURATION_NAME",),
        usage="--activate | --help",
    ),
    Command(
        "config configurations delete", named.delete, ("CONFIGURATION_NAMES",), usage="--help"
    ),
    Command("config configurations list", named.list_all),
    Command(
        "iam service-accounts list",
        lists.service_accounts,
        flags=("--project",),
        usage="--filter | --help | --limit | --sort-by | --uri",
    ),
    Command(
        "projects list",
        lists.projects,
        flags=("--sort-by",),
        usage="--filter | --help | --limit | --page-size | --sort-by |\n --uri",
    ),
    Command("auth list", lists.accounts),
    Command("auth print-identity-token", identity.print_identity_token),
    Command(
        "auth application-default login",
        defaults.login,
        flags=("--impersonate-service-account",),
        optional="ACCOUNT",
        usage="--browser | --client-id-file |\n --disable-quota-project | --help | "
        "--launch-browser |\n --login-config | --scopes",
    ),
    Command(
        "auth application-default set-quota-project",
        defaults.set_quota_project,
        ("QUOTA_PROJECT_ID",),
        usage="--help",
    ),
    Command("auth application-default revoke", defaults.revoke),
    Command("version", lists.version),
]
