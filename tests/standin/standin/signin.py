# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The browser sign-in: the address, the browser, the one request that comes back."""

import os
import string

from .errors import Crash, GcloudError

_CLIENT_ID = "764086051850-standin0000000000000000000000000.apps.googleusercontent.com"
_SCOPES = "+".join(
    name.replace(":", "%3A").replace("/", "%2F")
    for name in (
        "openid",
        "https://www.googleapis.com/auth/userinfo.email",
        "https://www.googleapis.com/auth/cloud-platform",
        "https://www.googleapis.com/auth/sqlservice.login",
    )
)
_DISPLAY_VARIABLES = ("DISPLAY", "WAYLAND_DISPLAY", "MIR_SOCKET", "TORVI_STANDIN_HEADLESS")
_HINT = "There was a problem with web authentication. Try running again with --no-browser."
_UNREACHABLE = (
    "Could not reach the login server. A potential cause of this could be because you are behind a "
    "proxy. Please set the environment variables HTTPS_PROXY and HTTP_PROXY to the address of the "
    'proxy in the format "protocol://address:port" (without quotes) and try again.\n'
    "Example: HTTPS_PROXY=http://192.168.0.1:8080"
)


def sign_in(session):
    """Returns the user who signed in. Waits for that without limit."""
    if _may_use_browser(session.environ):
        code = _code_from_browser(session)
    else:
        code = _code_from_terminal(session)
    try:
        user = session.api.exchange_code(code)
    except ConnectionError as error:
        raise GcloudError(_UNREACHABLE, _HINT) from error
    if user is None:
        raise GcloudError("(invalid_grant) Bad Request", _HINT)
    return user


def client():
    """Returns the members by which the credentials name the program that got them."""
    return {"client_id": _CLIENT_ID, "client_secret": "d-STANDINSECRETxxxxxxxx"}


def _may_use_browser(environ):
    return any(environ.get(name) for name in _DISPLAY_VARIABLES)


def _address(redirect, state, more=""):
    challenge = _random_text(43, string.ascii_letters + string.digits + "-_")
    return (
        f"https://accounts.google.com/o/oauth2/auth?response_type=code&client_id={_CLIENT_ID}"
        f"&redirect_uri={redirect}&scope={_SCOPES}&state={state}{more}&access_type=offline"
        f"&code_challenge={challenge}&code_challenge_method=S256"
    )


def _random_text(length, letters):
    return "".join(letters[byte % len(letters)] for byte in os.urandom(length))


def _code_from_terminal(session):
    """Without a display: another address, and a code to be typed in."""
    redirect = "https%3A%2F%2Fsdk.cloud.google.com%2Fapplicationdefaultauthcode.html"
    state = _random_text(30, string.ascii_letters + string.digits)
    address = _address(redirect, state, "&prompt=consent&token_usage=remote")
    session.err(
        "Go to the following link in your browser, and complete the sign-in prompts:\n\n"
        f"    {address}\n\n"
    )
    session.out("Once finished, enter the verification code provided in your browser: ")
    typed = os.read(0, 4096).decode("utf-8", "replace").partition("\n")[0]
    if not typed:
        raise Crash("EOFError", "EOF when reading a line")
    return typed


def _code_from_browser(session):
    from . import redirect  # Only here: what it imports, most commands never need.

    with redirect.listen() as server:
        port = server.getsockname()[1]
        state = _random_text(30, string.ascii_letters + string.digits)
        address = _address(f"http%3A%2F%2Flocalhost%3A{port}%2F", state)
        _open_browser(session.environ, address)
        session.err(f"Your browser has been opened to visit:\n\n    {address}\n\n")
        query = redirect.take_request(server)
    if "code" not in query:
        raise GcloudError("(missing_code) Missing code parameter in response.", _HINT)
    if query.get("state") != state:
        raise GcloudError(
            "(mismatching_state) CSRF Warning! State not equal in request and response.", _HINT
        )
    return query["code"]


def _open_browser(environ, address):
    """Starts the programs of BROWSER in turn until one says that it worked.

    The fallback that a desktop offers is only used when TORVI_STANDIN_OPENER names one, so that no
    test and no demonstration ever opens a real browser. It is not waited for.
    """
    import shlex
    import shutil
    import subprocess

    for command in filter(None, environ.get("BROWSER", "").split(os.pathsep)):
        words = shlex.split(command)
        background = words[-1] == "&"
        words = words[:-1] if background else words
        if not shutil.which(words[0]):
            continue
        has_place = any("%s" in word for word in words)
        words = [word.replace("%s", address) for word in words] + [address] * (not has_place)
        browser = subprocess.Popen(words, close_fds=True, start_new_session=background)
        if background or browser.wait() == 0:
            return
    opener = environ.get("TORVI_STANDIN_OPENER")
    if opener:
        subprocess.Popen([opener, address], start_new_session=True)
