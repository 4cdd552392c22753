# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The world behind the API: who exists, who may do what. Read from a JSON file.

The members, all optional:
  signIn                 the user whom a browser sign-in yields when the code names nobody
  users                  {e-mail: {"revoked": bool}}
  refreshTokens          {token: e-mail}, besides the tokens that the stand-in hands out itself
  projects               a list of projects as the API shows them, each with these members more:
    members              e-mails that see the project (absent: everybody)
    quotaUsers           e-mails that may use it as quota project (absent: the members)
    serviceAccountViewers  e-mails that may list its service accounts (absent: the members)
    serviceAccounts      a list of service accounts as the API shows them
    iamDisabled          true: the API for service accounts is not enabled
  projectsPerPage        how many projects one answer lists (absent: 500)
  generatedProjects      how many more projects to invent, visible to everybody
  impersonators          {service account: [e-mails that may act as it]}
  installation           {section: {property: value}}, gcloud's installation-wide properties
"""

import binascii
import json
import os

# What only the world knows about a project; the API never shows it.
_PRIVATE = ("members", "quotaUsers", "serviceAccountViewers", "serviceAccounts", "iamDisabled")


def new_token(kind, owner):
    """Returns a token that names its owner: "KIND.OWNER.SERIAL". kind: "refresh" or "code"."""
    name = binascii.b2a_base64(json.dumps(owner).encode(), newline=False).decode()
    name = name.rstrip("=").replace("+", "-").replace("/", "_")
    return f"{kind}.{name}.{os.urandom(16).hex()}"


def _owner(token, kind):
    """Returns whom the token names, or None for any other text."""
    parts = token.split(".")
    if len(parts) != 3 or parts[0] != kind:
        return None
    name = parts[1].replace("-", "+").replace("_", "/") + "=" * (-len(parts[1]) % 4)
    try:
        return json.loads(binascii.a2b_base64(name))
    except ValueError:
        return None


class World:
    """Answers what the servers would decide."""

    def __init__(self, data):
        self._data = data
        self._projects = data.get("projects", []) + [
            _generated_project(number) for number in range(data.get("generatedProjects", 0))
        ]
        for project in self._projects:
            if "projectId" not in project:
                raise SystemExit("stand-in: a project of the world has no projectId")

    @classmethod
    def load(cls, path):
        with open(path, encoding="utf-8") as file:
            return cls(json.load(file))

    def installation(self):
        """Returns {(section, property): value}."""
        sections = self._data.get("installation", {})
        return {(s, key): value for s, keys in sections.items() for key, value in keys.items()}

    def is_revoked(self, user):
        return self._data.get("users", {}).get(user, {}).get("revoked", False)

    def user_of_code(self, code):
        """Returns the user who signs in: the one whom the code names, else the usual one."""
        return _owner(code, "code") or self._data.get("signIn", "user@example.com")

    def user_of_token(self, refresh_token):
        """Returns whose token this is, or None for a token that nobody handed out."""
        return _owner(refresh_token, "refresh") or self._data.get("refreshTokens", {}).get(
            refresh_token
        )

    def may_impersonate(self, user, service_account):
        return user in self._data.get("impersonators", {}).get(service_account, [])

    def projects_of(self, user):
        """Returns the active projects that the user sees, by id, as the API shows them."""
        visible = [
            {key: value for key, value in project.items() if key not in _PRIVATE}
            for project in self._projects
            if _allows(project, ("members",), user)
            and project.get("lifecycleState", "ACTIVE") == "ACTIVE"
        ]
        return sorted(visible, key=lambda project: project["projectId"])

    def pages_of(self, user):
        """Returns the same in the pieces in which the API sends them: (page token, projects)."""
        size = self._data.get("projectsPerPage", 500)
        found = self.projects_of(user)
        starts = range(0, max(len(found), 1), size)
        return [(str(start) if start else None, found[start : start + size]) for start in starts]

    def project(self, name, user):
        """Returns the project with that id or number if the user sees it, else None."""
        for project in self._projects:
            if name in (project["projectId"], project.get("projectNumber")):
                return project if _allows(project, ("members",), user) else None
        return None

    @staticmethod
    def may_bill(project, user):
        return _allows(project, ("quotaUsers", "members"), user)

    @staticmethod
    def may_list_service_accounts(project, user):
        return _allows(project, ("serviceAccountViewers", "members"), user)


def _allows(project, lists, user):
    """Asks the first of the lists that the project has."""
    for name in lists:
        if name in project:
            return user in project[name]
    return True


def _generated_project(number):
    return {
        "createTime": f"2024-01-01T00:00:00.{number % 1000:03d}Z",
        "lifecycleState": "ACTIVE",
        "name": f"Generated project {number}",
        "parent": {"id": "918273645500", "type": "organization"},
        "projectId": f"generated-project-{number:06d}",
        "projectNumber": str(600000000000 + number),
    }
