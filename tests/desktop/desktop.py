# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""A private desktop for tests: a virtual display, a session bus, a window manager, a real panel.

Nothing here waits for a time: everything waits for a condition, and gives up loudly after a time
that is long for any machine.
"""

import os
import re
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

PROGRAM = os.environ.get("TORVI_PROGRAM", "")
PATIENCE = 30.0

PROGRAMS = ["Xvfb", "dbus-daemon", "dbus-monitor", "gdbus", "xfwm4", "mate-panel", "xdotool",
            "xwininfo", "xprop", "xclip"]

MATE_PANEL = """\
[org/mate/panel/general]
toplevel-id-list=['{edge}']
object-id-list=['notification-area']

[org/mate/panel/toplevels/{edge}]
expand=true
orientation='{edge}'
size=28
screen=0

[org/mate/panel/objects/notification-area]
object-type='applet'
applet-iid='NotificationAreaAppletFactory::NotificationArea'
toplevel-id='{edge}'
position=10
relative-to-edge='end'
locked=true
"""

# MATE draws the item as a button, whose icon a session without its settings daemon leaves out.
GTK_SETTINGS = "[Settings]\ngtk-button-images=1\ngtk-icon-theme-name=Adwaita\n"

GCLOUD = """\
#!/bin/sh
case "$*" in
    "projects list"*) echo '[{"projectId": "orchard-labs", "name": "Orchard Labs"}]' ;;
    *) echo "ERROR: (gcloud) not prepared for: $*" >&2; exit 1 ;;
esac
"""


def wait_for(condition, what):
    """The first true value of condition()."""
    deadline = time.monotonic() + PATIENCE
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(f"waited in vain: {what}")
        time.sleep(0.01)


class Process:
    """A child that leaves nothing behind; its output is in a file."""

    def __init__(self, log_folder, arguments, environment, **options):
        name = os.path.basename(arguments[0])
        handle, self.log = tempfile.mkstemp(prefix=name + "-", dir=log_folder)
        self.process = subprocess.Popen(
            arguments, env=environment, stdin=subprocess.DEVNULL, stdout=handle, stderr=handle,
            start_new_session=True, **options)
        os.close(handle)

    @property
    def pid(self):
        return self.process.pid

    def output(self):
        with open(self.log, encoding="utf-8", errors="replace") as file:
            return file.read()

    def is_running(self):
        return self.process.poll() is None

    def wait(self):
        return self.process.wait(PATIENCE)

    def end(self, number=signal.SIGTERM):
        """Its exit code. What it started goes with it."""
        for attempt in (number, signal.SIGKILL):
            try:
                os.killpg(self.process.pid, attempt)
            except ProcessLookupError:
                pass
            try:
                return self.process.wait(PATIENCE if attempt != signal.SIGKILL else None)
            except subprocess.TimeoutExpired:
                continue
        return None


class Desktop:
    """One desktop; Torvi runs on it, in a home of the desktop's or in a world of its own."""

    def __init__(self, panel_edge="top", has_panel=True, size="1280x900", world=None):
        """`world` is the environment in which Torvi finds its user's files."""
        self.world = world
        self.folder = tempfile.mkdtemp(prefix="torvi-desktop-")
        self.processes = []
        self.torvis = []
        self.panel_edge = panel_edge
        self.environment = self._make_environment()
        self.panel = None
        try:
            self._start_display(size)
            self._start_bus()
            self._start_window_manager()
            if has_panel:
                self.start_panel()
        except BaseException:
            self.close()
            raise

    def close(self):
        self.stop_torvi()
        for process in reversed(self.processes):
            process.end()
        shutil.rmtree(self.folder, ignore_errors=True)

    # What the desktop is made of

    def _make_environment(self):
        home = os.path.join(self.folder, "home")
        for part in ("home/.config/gtk-3.0", "home/.config/glib-2.0/settings", "run", "log",
                     "home/google-cloud-sdk/bin"):
            os.makedirs(os.path.join(self.folder, part))
        os.chmod(os.path.join(self.folder, "run"), 0o700)
        self._write("home/.config/gtk-3.0/settings.ini", GTK_SETTINGS)
        self._write("home/.config/glib-2.0/settings/keyfile",
                    MATE_PANEL.format(edge=self.panel_edge))
        self._write("home/google-cloud-sdk/bin/gcloud", GCLOUD)
        os.chmod(os.path.join(home, "google-cloud-sdk/bin/gcloud"), 0o755)
        self.write_configuration({"project": "orchard-labs", "account": "ada@example.com"})
        return {
            "PATH": os.environ["PATH"],
            "HOME": home,
            "CLOUDSDK_CONFIG": os.path.join(self.folder, "gcloud"),
            "SHELL": "/bin/sh",
            "LANG": "C.UTF-8",
            "XDG_RUNTIME_DIR": os.path.join(self.folder, "run"),
            "XDG_SESSION_TYPE": "x11",
            "GSETTINGS_BACKEND": "keyfile",
            "NO_AT_BRIDGE": "1",
            **{name: value for name, value in os.environ.items()
               if name.startswith(("ASAN_", "TSAN_", "UBSAN_", "LSAN_"))},
        }

    def _write(self, path, text):
        full = os.path.join(self.folder, path)
        os.makedirs(os.path.dirname(full), exist_ok=True)
        with open(full, "w", encoding="utf-8") as file:
            file.write(text)

    def write_configuration(self, properties):
        """The active gcloud configuration, as gcloud itself would leave it."""
        lines = "".join(f"{name} = {value}\n" for name, value in properties.items())
        self._write("gcloud/configurations/config_default", "[core]\n" + lines)

    def _start(self, *arguments, **options):
        process = Process(os.path.join(self.folder, "log"), list(arguments), self.environment,
                          **options)
        self.processes.append(process)
        return process

    def _start_and_read(self, make_arguments):
        """Starts a program that reports to a descriptor."""
        reading, writing = os.pipe()
        arguments = make_arguments(str(writing))
        self._start(*arguments, pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as report:
            line = report.readline().strip()
        if not line:
            raise AssertionError(f"{arguments[0]} did not start: {self.processes[-1].output()}")
        return line

    def _start_display(self, size):
        number = self._start_and_read(lambda descriptor: [
            "Xvfb", "-displayfd", descriptor, "-screen", "0", size + "x24", "-nolisten", "tcp",
            "-noreset"])
        self.environment["DISPLAY"] = ":" + number

    def _start_bus(self):
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._start_and_read(lambda descriptor: [
            "dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=" + descriptor])

    def _start_window_manager(self):
        self._start("xfwm4", "--compositor=off")
        wait_for(lambda: "0x" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
                 "the window manager")

    def start_helper(self, *arguments):
        """A part of the desktop that only some tests have; it ends with the desktop."""
        return self._start(*arguments)

    def start_panel(self):
        """Returns when the panel shows items."""
        self.panel = self._start("mate-panel", "--replace")
        wait_for(self.has_host, "the panel")

    def stop_panel(self):
        """Returns when nothing shows items any more."""
        self.panel.end(signal.SIGKILL)
        # The part that shows the items is a process of its own, which the bus started.
        owner = self.run("gdbus", "call", "--session", "-d", "org.freedesktop.DBus", "-o", "/",
                         "-m", "org.freedesktop.DBus.GetConnectionUnixProcessID",
                         "org.kde.StatusNotifierWatcher")
        if match := re.search(r"uint32 (\d+)", owner):
            try:
                os.kill(int(match[1]), signal.SIGKILL)
            except ProcessLookupError:
                pass
        wait_for(lambda: not self.has_owner("org.kde.StatusNotifierWatcher"), "the panel's end")

    # Looking

    def run(self, *arguments, check=False):
        """What a command prints."""
        done = subprocess.run(arguments, env=self.environment, stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, timeout=PATIENCE, check=False)
        if check and done.returncode != 0:
            raise AssertionError(f"{arguments}: {done.returncode}: {done.stderr}")
        return done.stdout

    def has_owner(self, name):
        return "true" in self.run("gdbus", "call", "--session", "-d", "org.freedesktop.DBus", "-o",
                                  "/", "-m", "org.freedesktop.DBus.NameHasOwner", name)

    def get(self, service, path, interface, name):
        """A property as gdbus prints it; empty when there is none."""
        printed = self.run("gdbus", "call", "--session", "-d", service, "-o", path, "-m",
                           "org.freedesktop.DBus.Properties.Get", interface, name)
        match = re.match(r"\(<(.*)>,\)\n$", printed, re.DOTALL)
        return match[1] if match else ""

    def watcher(self, name):
        return self.get("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher",
                        "org.kde.StatusNotifierWatcher", name)

    def has_host(self):
        return self.watcher("IsStatusNotifierHostRegistered") == "true"

    def item_property(self, torvi, name):
        return self.get(f"org.kde.StatusNotifierItem-{torvi.pid}-1", "/StatusNotifierItem",
                        "org.kde.StatusNotifierItem", name)

    def windows(self):
        """(width, height, x, y) of Torvi's visible windows, by their identifiers."""
        found = {}
        for identifier in wait_for(self._search_windows, "a look at all windows").stdout.split():
            geometry = dict(re.findall(r"(\w+)=(-?\d+)", self.run(
                "xdotool", "getwindowgeometry", "--shell", identifier)))
            if "WIDTH" in geometry:
                found[identifier] = tuple(int(geometry[part])
                                          for part in ("WIDTH", "HEIGHT", "X", "Y"))
        return found

    def _search_windows(self):
        """xdotool's answer; None when it failed because one of any program's windows went meanwhile."""
        done = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Torvi$"],
                              env=self.environment, stdin=subprocess.DEVNULL, capture_output=True,
                              text=True, timeout=PATIENCE, check=False)
        return None if "X Error" in done.stderr else done

    def popover(self):
        """(x, y) of the popover, or None."""
        return next(((x, y) for width, height, x, y in self.windows().values()
                     if (width, height) == (400, 750)), None)

    def manager(self):
        """The manager window's identifier, or None."""
        return next((identifier for identifier, (width, height, _, _) in self.windows().items()
                     if (width, height) == (600, 450)), None)

    def states(self, window):
        """The window manager's states of a window."""
        return set(re.findall(r"_NET_WM_STATE_(\w+)", self.run("xprop", "-id", window,
                                                               "_NET_WM_STATE")))

    def _items_in_panel(self):
        """(x, y) of the middle of the panel's items; None while there are none."""
        tree = self.run("xwininfo", "-root", "-tree")
        for match in re.finditer(r'"notification-area-applet": .*?  (\d+)x(\d+)\+-?\d+\+-?\d+'
                                 r'  \+(\d+)\+(\d+)\n', tree):
            width, height, x, y = map(int, match.groups())
            handle = 8  # which the panel draws before the items
            if width > handle + 3:
                return x + (width + handle) // 2, y + height // 2
        return None

    def item_position(self):
        """The middle of the one item in the panel, once the panel leaves it in its place."""
        last = None

        def look():
            nonlocal last
            before, last = last, self._items_in_panel()
            return last if last == before else None
        return wait_for(look, "the item in the panel")

    def wait_for_empty_panel(self):
        wait_for(lambda: self._items_in_panel() is None, "an empty panel")

    def clipboard(self, target="UTF8_STRING"):
        return self.run("xclip", "-o", "-selection", "clipboard", "-target", target)

    def picture(self, name):
        """Keeps a picture of the screen where TORVI_PICTURES says; for people to look at."""
        folder = os.environ.get("TORVI_PICTURES")
        if folder:
            self.run("import", "-window", "root", os.path.join(folder, name + ".png"), check=True)

    def wait_for_still_picture(self):
        """Returns when nothing on the screen moves any more, a progress indicator included."""
        looks_alike = 0
        last = None

        def look():
            nonlocal last, looks_alike
            before = last
            last = subprocess.run(["import", "-window", "root", "ppm:-"], env=self.environment,
                                  capture_output=True, timeout=PATIENCE, check=True).stdout
            looks_alike = looks_alike + 1 if last == before else 0
            return looks_alike == 10
        wait_for(look, "a still picture")

    # Acting

    def click(self, position, button=1):
        self.run("xdotool", "mousemove", str(position[0]), str(position[1]), "click", str(button),
                 check=True)

    def key(self, name):
        self.run("xdotool", "key", name, check=True)

    def start_torvi(self, *arguments, **environment):
        """Another process of Torvi, which may end at once."""
        own = self.environment
        if self.world is not None:
            of_desktop = ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR")
            own = {**self.world, **{name: own[name] for name in of_desktop}}
            own.pop("WAYLAND_DISPLAY", None)
        process = Process(os.path.join(self.folder, "log"), [PROGRAM, *arguments],
                          {**own, **environment})
        self.torvis.append(process)
        return process

    def launch_torvi(self, *arguments):
        """The running Torvi, on the bus and, where there is a panel, in it."""
        torvi = self.start_torvi(*arguments)
        wait_for(lambda: self.item_property(torvi, "Id"), "the status item on the bus")
        if self.panel:
            wait_for(lambda: str(torvi.pid) in self.watcher("RegisteredStatusNotifierItems"),
                     "the status item in the panel")
            self.item_position()
        return torvi

    def ask_torvi(self, *arguments):
        """Lets a second start carry something out; its exit code."""
        return self.start_torvi(*arguments).wait()

    def stop_torvi(self):
        for torvi in self.torvis:
            torvi.end()
        self.torvis.clear()
        if self.panel and self.panel.is_running():
            self.wait_for_empty_panel()

    def calls(self, member):
        return Calls(self, member)


class Calls:
    """Sees the calls of one member on the bus, so that a test can wait for what must not show."""

    def __init__(self, desktop, member):
        self.desktop = desktop
        self.member = member
        self.monitor = Process(os.path.join(desktop.folder, "log"),
                               ["dbus-monitor", "--session",
                                f"type='method_call',member='{member}'",
                                "type='method_call',member='GetMachineId'"],
                               desktop.environment)
        # It listens once it sees a call that nobody else makes.
        wait_for(self._sees_probe, "the bus monitor")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.monitor.end()

    def _sees_probe(self):
        self.desktop.run("gdbus", "call", "--session", "-d", "org.freedesktop.DBus", "-o", "/",
                         "-m", "org.freedesktop.DBus.Peer.GetMachineId")
        return "member=GetMachineId" in self.monitor.output()

    def count(self):
        return self.monitor.output().count(f"member={self.member}\n")

    def wait_until(self, count):
        wait_for(lambda: self.count() >= count, f"{count} calls of {self.member}")


class DesktopTestCase(unittest.TestCase):
    """Tests that share a desktop; each has a Torvi of its own."""

    DESKTOP = {}

    @classmethod
    def setUpClass(cls):
        missing = [name for name in PROGRAMS if not shutil.which(name)]
        if missing:
            raise unittest.SkipTest("not installed: " + ", ".join(missing))
        cls.desktop = Desktop(**cls.DESKTOP)
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        # Away from the panel, where a pointer would show tool tips.
        self.desktop.run("xdotool", "mousemove", "5", "450", check=True)
        self.addCleanup(self.desktop.stop_torvi)

    def wait_for_popover(self):
        return wait_for(self.desktop.popover, "the popover")

    def wait_for_no_popover(self):
        wait_for(lambda: self.desktop.popover() is None, "the popover's end")

    def settle(self, torvi):
        """Returns when Torvi has done all that it was asked on the bus before."""
        self.assertTrue(self.desktop.item_property(torvi, "Id"))
