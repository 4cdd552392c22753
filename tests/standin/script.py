# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The script of commands that compare.py plays on both gclouds, one step after the other."""

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


def steps(key):
    """Returns the script. key: the service account's private key in PEM form."""
    user = user_adc(DANA)
    user_prod = user_adc(DANA, PROD)
    robot = service_account_key(DEPLOYER, key)
    return [
        # Reading.
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
        # Projects and accounts.
        Step([*_SET, "project", STAGE]),
        Step([*_SET, "project", "unheard-of"]),
        Step([*_SET, "project", "771000000005"]),
        Step([*_SET, "project", "example.com:old-billing"]),
        Step([*_SET, "project", "a b"]),
        Step([*_SET, "project", "Orchard_PROD"]),
        Step([*_SET, "project", "a_b"]),
        Step([*_SET, "project", ""]),
        Step([*_SET, "project", STAGE], adc=user),
        Step([*_SET, "project", "unheard-of"], adc=user),
        Step([*_SET, "project", "Orchard_PROD"], adc=user),
        Step([*_SET, "project", ""], adc=user),
        Step([*_SET, "project", PROD], adc=user_prod),
        Step([*_SET, "project", STAGE], adc=robot),
        Step([*_SET, "project", STAGE], adc=external_adc(DEPLOYER)),
        Step([*_SET, "project", PROD], adc="{ not json"),
        Step([*_SET, "project", PROD], adc=""),
        Step([*_SET, "project", PROD], adc="{}"),
        Step([*_SET, "project", PROD], adc="[]"),
        Step([*_SET, "project", PROD], adc='{"type": "nonsense"}'),
        Step([*_SET, "project", PROD], adc=user, CLOUDSDK_CORE_PROJECT=STAGE),
        Step([*_SET, "project", "unheard-of"], adc=False, CLOUDSDK_CORE_ACCOUNT=SAM),
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
        # Configurations.
        Step([*_CREATE, "fresh"]),
        Step(_PROPERTIES),
        Step([*_CREATE, "fresh"]),
        Step([*_CREATE, "Fresh_One"]),
        Step([*_CREATE, "NONE"]),
        Step([*_DELETE, "fresh"]),
        Step([*_ACTIVATE, "labs"], adc=user_prod),
        Step([*_ACTIVATE, "robot"]),
        Step([*_ACTIVATE, "default"]),
        Step([*_ACTIVATE, "labs"], adc="{ not json"),
        Step([*_ACTIVATE, "default"], adc=user_prod, CLOUDSDK_ACTIVE_CONFIG_NAME="labs"),
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
        # Impersonation.
        Step([*_SET, _IMPERSONATION, READER]),
        Step(_PROJECTS),
        Step([*_SET, "project", DATA]),
        Step([*_SET, "project", PROD]),
        Step([*_ROBOTS, f"--project={PROD}"]),
        Step(_QUOTA + ["unheard-of"], adc=user_prod),
        Step(_QUOTA + [PROD], adc=user_adc(SAM)),
        Step(_QUOTA + [DATA], adc=user_prod),
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
        # Application default credentials.
        Step([*_LOGIN[:3], f"--impersonate-service-account={DEPLOYER}", "--quiet"], user=DANA),
        Step([*_LOGIN[:3], "--impersonate-service-account=", "--quiet"], user=DANA),
        Step(_LOGIN, user=SAM),
        Step(_LOGIN, user=DANA, CLOUDSDK_CORE_PROJECT=DATA),
        Step(_LOGIN, user=DANA, adc=robot),
        Step(_QUOTA + [STAGE]),
        Step(_QUOTA + [DATA]),
        Step(_QUOTA + [DATA], adc=user),
        Step(_QUOTA + [DATA], adc=user, CLOUDSDK_ACTIVE_CONFIG_NAME="robot"),
        Step(_QUOTA + ["unheard-of"], adc=user_prod),
        Step(_QUOTA + ["a b"], adc=user_prod),
        Step(_QUOTA + [""], adc=user_prod),
        Step(_QUOTA + [PROD], adc=robot),
        Step(_QUOTA + [PROD], adc="{ not json"),
        Step(_QUOTA + [PROD], adc=False),
        Step(_REVOKE),
        Step(_REVOKE, adc=robot),
        Step(_REVOKE, adc=external_adc(DEPLOYER)),
        Step(_REVOKE, adc="{ not json"),
        Step(_REVOKE, adc=user),
        Step(_LOGIN),
        # A service account.
        Step([*_ACTIVATE, "robot"]),
        Step(_PROJECTS),
        Step([*_SET, "project", PROD]),
        Step(_IDENTITY),
        # Wrong command lines.
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
