# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""How the directory looked, and what the world did, before each recording of the real gcloud."""

from standin.databases import ConfigurationStore
from standin.directory import Directory, external_adc, service_account_key, user_adc

ALEX = "alex.moreno@example.com"
LABS = "alex@labs.example.com"
DEPLOYER = "deployer@orchid-prod-4821.iam.gserviceaccount.com"
RUNNER = "ci-runner@orchid-staging-4821.iam.gserviceaccount.com"
READER = "report-reader@orchid-prod-4821.iam.gserviceaccount.com"
PROD = "orchid-prod-4821"
STAGING = "orchid-staging-4821"

NOT_JSON = "{ not json"


class Replay:
    """What one recording needs.

    is_empty      the configuration directory has nothing in it
    active        the active configuration
    default       the properties of the default configuration's section "core", if other than usual
    adc           the application default credentials, None without any
    has_tokens    False: no access token is cached
    fault         TORVI_STANDIN_FAULT
    world         what to change in the world: called with its data
    first         the arguments of runs before the recorded one
    browser       what comes back to the sign-in's port: a query, or None for a request for an icon
    signal        what ends the run while it waits for the browser
    """

    def __init__(self, **members):
        self.is_empty = False
        self.active = "default"
        self.default = {"account": ALEX, "project": PROD}
        self.adc = None
        self.has_tokens = True
        self.fault = ""
        self.world = lambda data: None
        self.first = []
        self.browser = {"code": "4/any"}
        self.signal = None
        self.__dict__.update(members)

    def build(self, path):
        """Makes the configuration directory."""
        directory = Directory(path)
        if self.is_empty:
            return
        directory.add_user(ALEX)
        directory.add_user(LABS)
        directory.add_service_account(DEPLOYER)
        directory.add_service_account(RUNNER)
        self._add_configurations(directory)
        if self.has_tokens:
            directory.cache_tokens(ALEX, LABS, DEPLOYER, RUNNER)
        if self.adc is not None:
            directory.write_adc(self.adc)

    def _add_configurations(self, directory):
        place = {"region": "europe-west1", "zone": "europe-west1-b"}
        usual = "project" in self.default and "account" in self.default
        sections = {"core": self.default, "compute": place}
        if not usual or self.default["account"] != ALEX:
            del sections["compute"]
        directory.add_configuration("default", **sections)
        directory.add_configuration("labs", core={"account": LABS, "project": "labs-sandbox-7731"})
        directory.add_configuration("robot", core={"account": DEPLOYER})
        directory.add_configuration(
            "staging",
            core={"account": ALEX, "project": STAGING},
            compute={"region": "us-central1"},
            auth={"impersonate_service_account": READER},
        )
        for name in ("labs", "staging", "default"):
            directory.activate(name)
            ConfigurationStore(directory.path, name).remember("client_arch")
        directory.activate("robot")
        directory.activate(self.active)


def _without_projects(data):
    data["projects"] = []


def _without_impersonators(data):
    data["impersonators"] = {}


def _without_iam(data):
    _project(data, PROD)["iamDisabled"] = True


def _without_quota(data):
    _project(data, PROD)["quotaUsers"] = []


def _labs_signs_in(data):
    data["signIn"] = LABS


def _three_a_page(data):
    data["projectsPerPage"] = 3


def _project(data, name):
    return next(project for project in data["projects"] if project["projectId"] == name)


_USER = user_adc(ALEX)
_USER_PROD = user_adc(ALEX, PROD)
_KEY = service_account_key(DEPLOYER)
_EXTERNAL = external_adc(RUNNER)
_IMPERSONATED = {
    "delegates": [],
    "service_account_impersonation_url": (
        f"https://iamcredentials.googleapis.com/v1/projects/-/serviceAccounts/{READER}"
        ":generateAccessToken"
    ),
    "source_credentials": _USER,
    "type": "impersonated_service_account",
}
_GONE = {"account": "gone@example.com"}

# Recordings that need more than the usual directory with four configurations and no ADC file.
REPLAYS = {
    "activateConfiguration-adc-not-json": Replay(adc=NOT_JSON),
    "activateConfiguration-env-override": Replay(adc=_USER_PROD),
    "activateConfiguration-network-down": Replay(adc=_USER_PROD, fault="offline"),
    "activateConfiguration-ok": Replay(adc=_USER_PROD),
    "activateConfiguration-ok-no-project": Replay(adc=_USER_PROD),
    "applicationDefaultLogin-abandoned-sigint": Replay(signal="SIGINT"),
    "applicationDefaultLogin-abandoned-sigterm": Replay(signal="SIGTERM"),
    "applicationDefaultLogin-cli-impersonation-active": Replay(active="staging"),
    "applicationDefaultLogin-denied": Replay(browser={"error": "access_denied"}),
    "applicationDefaultLogin-exchange-fails": Replay(fault="refuse"),
    "applicationDefaultLogin-network-down": Replay(fault="offline"),
    "applicationDefaultLogin-ok-empty-directory": Replay(is_empty=True),
    "applicationDefaultLogin-ok-no-project": Replay(default={"account": ALEX}),
    "applicationDefaultLogin-ok-no-quota-permission": Replay(world=_without_quota),
    "applicationDefaultLogin-ok-replaces": Replay(adc=_KEY),
    "applicationDefaultLogin-other-account-no-access": Replay(world=_labs_signs_in),
    "applicationDefaultLogin-sigkill": Replay(signal="SIGKILL"),
    "applicationDefaultLogin-stray-request": Replay(browser=None),
    "clearImpersonation-empty-directory": Replay(is_empty=True),
    "clearImpersonation-ok": Replay(active="staging"),
    "clearQuotaProject-service-account-adc": Replay(adc=_KEY),
    "clearQuotaProject-user-adc-with-quota": Replay(adc=_USER_PROD),
    "clearQuotaProject-user-adc-without": Replay(adc=_USER),
    "createConfiguration-empty-directory": Replay(is_empty=True),
    "getConfigProperties-empty-directory": Replay(is_empty=True),
    "listAccounts-none": Replay(is_empty=True),
    "listConfigurations-empty-directory": Replay(is_empty=True),
    "listProjects-403": Replay(fault="api:403"),
    "listProjects-500": Replay(fault="api:500"),
    "listProjects-account-not-credentialed": Replay(default=_GONE),
    "listProjects-expired-credentials": Replay(fault="expired", has_tokens=False),
    "listProjects-impersonating": Replay(active="staging"),
    "listProjects-impersonation-denied": Replay(active="staging", world=_without_impersonators),
    "listProjects-network-down": Replay(fault="offline"),
    "listProjects-network-down-no-token": Replay(fault="offline", has_tokens=False),
    "listProjects-no-account": Replay(is_empty=True),
    "listProjects-none": Replay(world=_without_projects),
    "listProjects-proxy-refused": Replay(fault="proxy-refused"),
    "listProjects-service-account": Replay(active="robot"),
    "listProjects-three-pages": Replay(world=_three_a_page),
    "listServiceAccounts-api-disabled": Replay(world=_without_iam),
    "listServiceAccounts-impersonating": Replay(active="staging"),
    "listServiceAccounts-network-down": Replay(fault="offline"),
    "listServiceAccounts-no-account": Replay(is_empty=True),
    "printIdentityToken-account-not-credentialed": Replay(default=_GONE),
    "printIdentityToken-expired-credentials": Replay(fault="expired", has_tokens=False),
    "printIdentityToken-impersonating": Replay(active="staging"),
    "printIdentityToken-network-down": Replay(fault="offline"),
    "printIdentityToken-no-account": Replay(is_empty=True),
    "printIdentityToken-service-account": Replay(active="robot"),
    "revokeADC-already-revoked": Replay(adc=_USER, fault="expired"),
    "revokeADC-external": Replay(adc=_EXTERNAL),
    "revokeADC-impersonated": Replay(adc=_IMPERSONATED),
    "revokeADC-network-down": Replay(adc=_USER, fault="offline"),
    "revokeADC-not-json": Replay(adc=NOT_JSON),
    "revokeADC-service-account": Replay(adc=_KEY),
    "revokeADC-user": Replay(adc=_USER),
    "setAccount-network-down": Replay(fault="offline"),
    "setProject-account-not-credentialed": Replay(default=_GONE),
    "setProject-adc-not-json": Replay(adc=NOT_JSON),
    "setProject-api-503": Replay(fault="api:503"),
    "setProject-expired-credentials": Replay(fault="expired", has_tokens=False),
    "setProject-impersonating": Replay(active="staging"),
    "setProject-impersonation-denied": Replay(active="staging", world=_without_impersonators),
    "setProject-network-down": Replay(fault="offline"),
    "setProject-network-down-no-account": Replay(is_empty=True, fault="offline"),
    "setProject-network-down-no-token": Replay(fault="offline", has_tokens=False),
    "setProject-no-account": Replay(is_empty=True),
    "setProject-ok": Replay(adc=_USER),
    "setProject-ok-quota-matches": Replay(adc=user_adc(ALEX, STAGING)),
    "setProject-ok-service-account-adc": Replay(adc=_KEY),
    "setProject-proxy-refused": Replay(fault="proxy-refused"),
    "setQuotaProject-bad-id": Replay(adc=_USER_PROD),
    "setQuotaProject-external-adc": Replay(adc=_EXTERNAL),
    "setQuotaProject-impersonated-adc": Replay(adc=_IMPERSONATED),
    "setQuotaProject-network-down": Replay(adc=_USER_PROD, fault="offline"),
    "setQuotaProject-network-down-token-cached": Replay(
        adc=_USER,
        fault="offline",
        first=[["auth", "application-default", "set-quota-project", PROD]],
    ),
    "setQuotaProject-no-permission": Replay(adc=_USER_PROD),
    "setQuotaProject-no-permission-had-none": Replay(adc=_USER),
    "setQuotaProject-nonexistent": Replay(adc=_USER_PROD),
    "setQuotaProject-ok": Replay(adc=_USER),
    "setQuotaProject-replaces": Replay(adc=_USER_PROD),
    "setQuotaProject-service-account-adc": Replay(adc=_KEY),
}
