# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The script of commands that compare.py plays on both gclouds, in chapters."""

from standin.directory import external_adc, service_account_key, user_adc

DANA = "dana@example.com"
SAM = "sam@labs.example.com"
DEPLOYER = "deployer@orchard-prod-5150.iam.gserviceaccount.com"
READER = "reader@orchard-prod-5150.iam.gserviceaccount.com"
PROD = "orchard-prod-5150"
STAGE = "orchard-stage-5150"
DATA = "orchard-data-5150"  # Dana sees it, but may not use it as quota project.

_SET = ["config", "set"]
_ACTIVATE = ["config", "configurations", "activate"]
_CREATE = ["config", "configurations", "create"]
_DELETE = ["config", "configurations", "delete", "--quiet"]
_LOGIN = ["auth", "application-default", "login", "--quiet"]
_QUOTA = ["auth", "application-default", "set-quota-project"]
_REVOKE = ["auth", "application-default", "revoke", "--quiet"]
_IDENTITY = ["auth", "print-identity-token"]
_PROJECTS = ["projects", "list", "--format=json", "--sort-by=projectId"]
_PROPERTIES = ["config", "list", "--format=json"]
_ROBOTS = ["iam", "service-accounts", "list", "--format=json"]
_IMPERSONATION = "auth/impersonate_service_account"

_DANA = user_adc(DANA)
_DANA_PROD = user_adc(DANA, PROD)


class Step:
    """One command, and what happens before it.

    adc: the content of the ADC file to write first; False removes the file
    files: {path: text} to write first, in the configuration directory
    user: who signs in, when the command needs a browser
    """

    def __init__(self, arguments, adc=None, files=None, user=None, **environment):
        self.arguments = arguments
        self.adc = adc
        self.files = files or {}
        self.environment = environment
        self.user = user

    def __str__(self):
        words = [word or "''" for word in self.arguments]
        settings = [f"{name}={value}" for name, value in self.environment.items()]
        return " ".join([*settings, *words])


def build(directory, key):
    """Fills the configuration directory with which the script begins. key: in PEM form."""
    directory.add_user(DANA)
    directory.add_user(SAM)
    directory.add_service_account(DEPLOYER, key)
    directory.add_configuration(
        "default", core={"account": DANA, "project": PROD}, compute={"region": "europe-west1"}
    )
    directory.add_configuration("labs", core={"account": SAM, "project": "labs-sandbox-3141"})
    directory.add_configuration("robot", core={"account": DEPLOYER})
    directory.add_configuration(
        "acting",
        core={"account": DANA, "project": STAGE},
        auth={"impersonate_service_account": READER},
    )


def _reading(_key):
    return [
        Step(["auth", "list", "--format=json"]),
        Step(["config", "configurations", "list", "--format=json"]),
        Step(_PROPERTIES),
        Step([*_PROPERTIES, "--configuration=acting"]),
        Step([*_PROPERTIES, "--configuration=nowhere"]),
        Step([*_PROPERTIES, "--configuration="]),
        Step(_PROPERTIES, CLOUDSDK_CORE_PROJECT="", CLOUDSDK_ACTIVE_CONFIG_NAME="labs"),
        Step(_PROJECTS),
        Step([*_ROBOTS, f"--project={PROD}"]),
        Step([*_ROBOTS, f"--project={STAGE}"]),
        Step([*_ROBOTS, "--project="]),
        Step([*_ROBOTS, "--project=unheard-of"]),
        Step(_IDENTITY),
    ]


def _projects(key):
    return [
        Step([*_SET, "project", STAGE]),
        Step([*_SET, "project", "unheard-of"]),
        Step([*_SET, "project", "771000000005"]),
        Step([*_SET, "project", "example.com:old-billing"]),
        Step([*_SET, "project", "a b"]),
        Step([*_SET, "project", "Orchard_PROD"]),
        Step([*_SET, "project", "a_b"]),
        Step([*_SET, "project", ""]),
        Step([*_SET, "project", STAGE], adc=_DANA),
        Step([*_SET, "project", "unheard-of"], adc=_DANA),
        Step([*_SET, "project", "Orchard_PROD"], adc=_DANA),
        Step([*_SET, "project", ""], adc=_DANA),
        Step([*_SET, "project", PROD], adc=_DANA_PROD),
        Step([*_SET, "project", STAGE], adc=service_account_key(DEPLOYER, key)),
        Step([*_SET, "project", STAGE], adc=external_adc(DEPLOYER)),
        Step([*_SET, "project", PROD], adc="{ not json"),
        Step([*_SET, "project", PROD], adc=""),
        Step([*_SET, "project", PROD], adc="{}"),
        Step([*_SET, "project", PROD], adc="[]"),
        Step([*_SET, "project", PROD], adc='{"type": "nonsense"}'),
        Step([*_SET, "project", PROD], adc=_DANA, CLOUDSDK_CORE_PROJECT=STAGE),
        Step([*_SET, "project", "unheard-of"], adc=False, CLOUDSDK_CORE_ACCOUNT=SAM),
    ]


def _accounts(_key):
    return [
        Step([*_SET, "account", SAM]),
        Step([*_SET, "account", "per%cent@example.com"]),
        Step([*_SET, "project", PROD]),
        Step(_PROJECTS),
        Step(_IDENTITY),
        Step([*_SET, "account", ""]),
        Step([*_SET, "project", PROD]),
        Step(_PROJECTS),
        Step([*_ROBOTS, f"--project={PROD}"]),
        Step(_IDENTITY),
        Step([*_SET, "account", DANA], CLOUDSDK_CORE_ACCOUNT=SAM),
        Step([*_SET, "account", DANA], CLOUDSDK_ACTIVE_CONFIG_NAME="labs"),
        Step([*_SET, "account", DANA], CLOUDSDK_ACTIVE_CONFIG_NAME="nowhere"),
        Step(["config", "unset", "compute/region"]),
    ]


def _configurations(_key):
    return [
        Step([*_CREATE, "fresh"]),
        Step(_PROPERTIES),
        Step([*_CREATE, "fresh"]),
        Step([*_CREATE, "Fresh_One"]),
        Step([*_CREATE, "NONE"]),
        Step([*_DELETE, "fresh"]),
        Step([*_ACTIVATE, "labs"], adc=_DANA_PROD),
        Step([*_ACTIVATE, "robot"]),
        Step([*_ACTIVATE, "default"]),
        Step([*_ACTIVATE, "labs"], adc="{ not json"),
        Step([*_ACTIVATE, "default"], adc=_DANA_PROD, CLOUDSDK_ACTIVE_CONFIG_NAME="labs"),
        Step([*_ACTIVATE, "nowhere"]),
        Step([*_ACTIVATE, ""]),
        Step([*_DELETE, "fresh"]),
        Step([*_DELETE, "nowhere"]),
        Step([*_DELETE, "default"], CLOUDSDK_ACTIVE_CONFIG_NAME="labs"),
        Step([*_ACTIVATE, "NONE"]),
        Step([*_SET, "account", DANA]),
        Step(["config", "unset", "account"]),
        Step(["config", "configurations", "list", "--format=json"]),
        Step(_PROPERTIES, files={"active_config": "labs\n"}),
        Step([*_SET, "account", DANA], files={"active_config": "gone"}),
        Step(_PROPERTIES, files={"active_config": ""}),
        Step(_PROPERTIES, files={"active_config": "Bad Name"}, CLOUDSDK_ACTIVE_CONFIG_NAME="labs"),
        Step(_PROPERTIES),
        Step([*_SET, "account", DANA]),
        Step(_PROPERTIES, files={"configurations/config_labs": "[core]\naccount: x\n# y\nA = 1\n"}),
        Step([*_PROPERTIES, "--configuration=labs"]),
    ]


def _impersonation(_key):
    return [
        Step([*_SET, _IMPERSONATION, READER]),
        Step(_PROJECTS),
        Step([*_SET, "project", DATA]),
        Step([*_SET, "project", PROD]),
        Step([*_ROBOTS, f"--project={PROD}"]),
        Step(_QUOTA + ["unheard-of"], adc=_DANA_PROD),
        Step(_QUOTA + [PROD], adc=user_adc(SAM)),
        Step(_QUOTA + [DATA], adc=_DANA_PROD),
        Step(_IDENTITY),
        Step([*_SET, _IMPERSONATION, "stranger@example.com"]),
        Step(_PROJECTS),
        Step([*_SET, "project", PROD]),
        Step([*_LOGIN[:3], f"--impersonate-service-account={READER}", "--quiet"], user=DANA),
        Step(_LOGIN, adc=False, user=DANA),
        Step(_QUOTA + [PROD]),
        Step(_REVOKE),
        Step([*_SET, _IMPERSONATION, ""]),
        Step(["config", "unset", _IMPERSONATION]),
        Step(["config", "unset", _IMPERSONATION]),
    ]


def _credentials(key):
    return [
        Step([*_LOGIN[:3], f"--impersonate-service-account={DEPLOYER}", "--quiet"], user=DANA),
        Step([*_LOGIN[:3], "--impersonate-service-account=", "--quiet"], user=DANA),
        Step(_LOGIN, user=SAM),
        Step(_LOGIN, user=DANA, CLOUDSDK_CORE_PROJECT=DATA),
        Step(_LOGIN, user=DANA, adc=service_account_key(DEPLOYER, key)),
        Step(_QUOTA + [STAGE]),
        Step(_QUOTA + [DATA]),
        Step(_QUOTA + [DATA], adc=_DANA),
        Step(_QUOTA + [DATA], adc=_DANA, CLOUDSDK_ACTIVE_CONFIG_NAME="robot"),
        Step(_QUOTA + ["unheard-of"], adc=_DANA_PROD),
        Step(_QUOTA + ["a b"], adc=_DANA_PROD),
        Step(_QUOTA + [""], adc=_DANA_PROD),
        Step(_QUOTA + [PROD], adc=service_account_key(DEPLOYER, key)),
        Step(_QUOTA + [PROD], adc="{ not json"),
        Step(_QUOTA + [PROD], adc=False),
        Step(_REVOKE),
        Step(_REVOKE, adc=service_account_key(DEPLOYER, key)),
        Step(_REVOKE, adc=external_adc(DEPLOYER)),
        Step(_REVOKE, adc="{ not json"),
        Step(_REVOKE, adc=_DANA),
        Step(_LOGIN),
    ]


def _robot(_key):
    return [
        Step([*_ACTIVATE, "robot"]),
        Step(_PROJECTS),
        Step([*_SET, "project", PROD]),
        Step(_IDENTITY),
    ]


def _usage(_key):
    return [
        Step([*_SET, "project"]),
        Step([*_SET, "project", "-x"]),
        Step([*_SET, "a", "b", "c"]),
        Step([*_SET, "account", "--", "-x"]),
        Step([*_SET, "nothing", "x"]),
        Step([*_SET, "no/thing", "x"]),
        Step(["config", "unset"]),
        Step(_DELETE),
        Step([*_ACTIVATE]),
        Step(["projects", "list", "--sort-by"]),
        Step([*_LOGIN, "--impersonate-service-account"]),
        Step(["config", "unset", "nothing"]),
    ]


# Each chapter begins with the directory that build() makes. Called with the private key.
CHAPTERS = {
    "reading": _reading,
    "projects": _projects,
    "accounts": _accounts,
    "configurations": _configurations,
    "impersonation": _impersonation,
    "credentials": _credentials,
    "robot": _robot,
    "usage": _usage,
}
