# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""What the Google APIs answer to gcloud, for the small fixed world of world.json.

Every token is a text that names its owner, so that a directory signed in against one stand-in works against the
next one. Nothing is signed or encrypted here: gcloud decodes an identity token, it does not verify it.
"""

import base64
import json
import re
import time
import urllib.parse
import uuid

SCOPES = ("openid https://www.googleapis.com/auth/userinfo.email https://www.googleapis.com/auth/cloud-platform "
          "https://www.googleapis.com/auth/appengine.admin https://www.googleapis.com/auth/sqlservice.login "
          "https://www.googleapis.com/auth/compute https://www.googleapis.com/auth/accounts.reauth")


class Refusal(Exception):
    """An answer other than 200."""

    def __init__(self, status, body):
        super().__init__(status)
        self.status = status
        self.body = body


def api_error(status, reason, message, details=None):
    error = {"code": status, "message": message, "status": reason}
    if details:
        error["details"] = details
    return Refusal(status, {"error": error})


def forbidden():
    return api_error(403, "PERMISSION_DENIED", "The caller does not have permission")


def encode(value):
    return base64.urlsafe_b64encode(json.dumps(value).encode()).decode().rstrip("=")


def decode(text):
    return json.loads(base64.urlsafe_b64decode(text + "=" * (-len(text) % 4)))


def owner_of(token, kind):
    """The e-mail in a token of the given kind, or None: "<kind>.<owner>.<serial>"."""
    parts = token.split(".")
    return decode(parts[1]) if len(parts) == 3 and parts[0] == kind else None


def new_token(kind, email):
    return "%s.%s.%s" % (kind, encode(email), uuid.uuid4().hex)


def identity_token(email, audience):
    now = int(time.time())
    claims = {"iss": "https://accounts.google.com", "aud": audience, "azp": audience, "sub": "1" + str(len(email)),
              "email": email, "email_verified": True, "iat": now, "exp": now + 3600}
    return "%s.%s.%s" % (encode({"alg": "RS256", "typ": "JWT"}), encode(claims), encode("no signature"))


class GoogleAPIs:
    """Answers one request at a time; throws Refusal for everything but success."""

    def __init__(self, world):
        self._world = world
        self._revoked = set()
        self._routes = [
            ("POST", "oauth2.googleapis.com", r"/token", self._token),
            ("POST", "oauth2.googleapis.com", r"/revoke", self._revoke),
            ("GET", "cloudresourcemanager.googleapis.com", r"/v1/projects", self._projects),
            ("GET", "cloudresourcemanager.googleapis.com", r"/v1/projects/([^/]+)", self._project),
            ("POST", "cloudresourcemanager.googleapis.com", r"/v1/projects/([^/]+):testIamPermissions",
             self._permissions),
            ("GET", "iam.googleapis.com", r"/v1/projects/([^/]+)/serviceAccounts", self._service_accounts),
            ("POST", "iamcredentials.googleapis.com", r"/v1/projects/-/serviceAccounts/([^/]+):generateAccessToken",
             self._impersonate),
            ("GET", "compute.googleapis.com", r"/compute/v1/projects/([^/]+)/(?:regions|zones)/([^/]+)", self._place),
        ]

    def knows_host(self, host):
        return any(route[1] == host for route in self._routes)

    def answer(self, request):
        for method, host, pattern, respond in self._routes:
            match = re.fullmatch(pattern, request.path)
            if match and (method, host) == (request.method, request.host):
                return respond(request, *map(urllib.parse.unquote, match.groups()))
        return None

    def caller(self, request):
        scheme, _, token = request.headers.get("Authorization", "").partition(" ")
        email = owner_of(token, "access") if scheme == "Bearer" else None
        if email is None:
            raise api_error(401, "UNAUTHENTICATED", "Request had invalid authentication credentials.")
        return email

    def _user(self, request):
        return self._world["users"].get(self.caller(request), {})

    def _visible_project(self, request, name):
        visible = self._user(request).get("projects", [])
        for project in visible:
            if name in (project, self._world["projects"][project]["number"]):
                return project
        raise forbidden()

    def _token(self, request):
        form = {key: values[0] for key, values in urllib.parse.parse_qs(request.body.decode()).items()}
        grant = form.get("grant_type", "")
        if grant.endswith("jwt-bearer"):
            return self._service_account_token(decode(form["assertion"].split(".")[1]))
        secret, kind = (("refresh_token", "refresh") if grant == "refresh_token" else ("code", "code"))
        email = owner_of(form.get(secret, ""), kind)
        if email is None or form[secret] in self._revoked:
            raise Refusal(400, {"error": "invalid_grant", "error_description": "Token has been expired or revoked."})
        answer = {"access_token": new_token("access", email), "expires_in": 3599, "token_type": "Bearer",
                  "scope": SCOPES, "id_token": identity_token(email, form.get("client_id", ""))}
        if kind == "code":
            answer["refresh_token"] = new_token("refresh", email)
        return answer

    @staticmethod
    def _service_account_token(claims):
        if "target_audience" in claims:
            return {"id_token": identity_token(claims["iss"], claims["target_audience"])}
        return {"access_token": new_token("access", claims["iss"]), "expires_in": 3599, "token_type": "Bearer",
                "id_token": identity_token(claims["iss"], claims["aud"])}

    def _revoke(self, request):
        fields = urllib.parse.parse_qs(request.query or request.body.decode())
        token = fields.get("token", [""])[0]
        if token in self._revoked or not (owner_of(token, "refresh") or owner_of(token, "access")):
            raise Refusal(400, {"error": "invalid_token", "error_description": "Token expired or revoked"})
        self._revoked.add(token)
        return {}

    def _described(self, project):
        facts = self._world["projects"][project]
        return {"projectId": project, "projectNumber": facts["number"], "name": facts["name"],
                "lifecycleState": "ACTIVE", "createTime": "2024-02-03T04:05:06.007Z",
                "parent": {"type": "organization", "id": "771000000000"}}

    def _projects(self, request):
        fields = urllib.parse.parse_qs(request.query)
        start = int(fields.get("pageToken", ["0"])[0])
        size = min(int(fields.get("pageSize", ["500"])[0]), self._world["projectsPerPage"])
        visible = self._user(request).get("projects", [])
        answer = {"projects": [self._described(project) for project in visible[start:start + size]]}
        if start + size < len(visible):
            answer["nextPageToken"] = str(start + size)
        return answer

    def _project(self, request, name):
        return self._described(self._visible_project(request, name))

    def _permissions(self, request, name):
        project = self._visible_project(request, name)
        allowed = project in self._user(request)["quotaProjects"]
        return {"permissions": json.loads(request.body)["permissions"]} if allowed else {}

    def _service_accounts(self, request, name):
        project = self._visible_project(request, name)
        if project not in self._world["serviceAccounts"]:
            raise api_error(403, "PERMISSION_DENIED", "Identity and Access Management (IAM) API has not been used in "
                            "project %s before or it is disabled." % self._world["projects"][project]["number"],
                            [{"@type": "type.googleapis.com/google.rpc.ErrorInfo", "reason": "SERVICE_DISABLED",
                              "domain": "googleapis.com", "metadata": {"service": "iam.googleapis.com"}}])
        accounts = []
        for index, account in enumerate(self._world["serviceAccounts"][project]):
            path = "projects/%s/serviceAccounts/%s" % (project, account["email"])
            accounts.append({**account, "name": path, "projectId": project, "uniqueId": str(10 ** 20 + index),
                             "etag": "MDEwMjE5MjA=", "disabled": False})
        return {"accounts": accounts} if accounts else {}

    def _impersonate(self, request, email):
        if email not in self._user(request).get("impersonates", []):
            raise api_error(403, "PERMISSION_DENIED", "Permission 'iam.serviceAccounts.getAccessToken' denied on "
                            "resource (or it may not exist).")
        expiry = time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(time.time() + 3599))
        return {"accessToken": new_token("access", email), "expireTime": expiry}

    def _place(self, request, project, place):
        self._visible_project(request, project)
        return {"name": place, "status": "UP"}
