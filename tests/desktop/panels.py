# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Desktops as people have them, for pictures of what shows of Torvi there."""

import json
import os
import subprocess

import desktop as desktops
from desktop import PATIENCE, Desktop, wait_for
from panel_settings import GNOME, GNOME_BINDING, LXQT, LXQT_PANEL, SWAY, WAYBAR
from test_xfce_panel import PANEL as XFCE_PANEL

WIDTH, HEIGHT = 1280, 900
TOOL_TIP = 10_000  # bytes of a picture that one changes, where a mere highlight changes fewer


class Panel(Desktop):
    """A desktop whose panel came up; Torvi's popover opens there as its people open it."""

    PROGRAMS = ()
    AREA = (WIDTH - 420, 0, 420, 28)  # of the panel, where the items are
    # What the pictures show: the item with its tool tip, and the popover.
    ITEM_PICTURE = (WIDTH - 420, 0, 420, 170)
    POPOVER_PICTURE = (WIDTH - 480, 0, 480, 420)

    def __init__(self, world):
        super().__init__(has_panel=False, world=world)
        self.run("xsetroot", "-solid", "#305070")
        try:
            self.start_host()
            self.before = self.pixels()
        except BaseException:
            self.close()
            raise

    def wait_for_host(self):
        wait_for(self.has_host, "the panel")
        self.wait_for_still_picture()

    def pixels(self, area=None):
        x, y, width, height = area or self.AREA
        return subprocess.run(["import", "-window", "root", "-crop",
                               f"{width}x{height}+{x}+{y}", "-depth", "8", "rgb:-"],
                              env=self.environment, capture_output=True, timeout=PATIENCE,
                              check=True).stdout

    def place(self):
        """(x, y) of the item: the middle of what its coming changed in the panel."""
        self.wait_for_still_picture()
        x, y, width, height = self.AREA
        now = self.pixels()
        columns = [index // 3 % width for index in range(len(now))
                   if now[index] != self.before[index]]
        if not columns:
            raise AssertionError("the panel shows no item")
        return x + (min(columns) + max(columns)) // 2, y + height // 2

    def open(self):
        self.click(self.place())

    def point_at_item(self):
        """Shows the tool tip, where there is one."""
        x, y = self.place()
        before = self.pixels(self.ITEM_PICTURE)
        for step in (1, 0):  # a pointer that moves over it
            self.run("xdotool", "mousemove", str(x + step), str(y), check=True)
        for _ in range(4):  # panels take their time before they show it
            self.wait_for_still_picture()
            now = self.pixels(self.ITEM_PICTURE)
            if sum(map(int.__ne__, before, now)) > TOOL_TIP:
                break

    def crop(self, file, area):
        x, y, width, height = area
        self.run("import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage",
                 "-colors", "200", f"PNG8:{file}", check=True)


class Mate(Panel):
    PROGRAMS = ("mate-panel",)

    def start_host(self):
        self.start_panel()
        self.wait_for_still_picture()

    def place(self):
        return self.item_position()


class Xfce(Panel):
    PROGRAMS = ("xfce4-panel",)

    def start_host(self):
        self._write("home/.config/xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml", XFCE_PANEL)
        self.start_helper("xfce4-panel", "--disable-wm-check")
        self.wait_for_host()


class LXQt(Panel):
    PROGRAMS = ("lxqt-panel",)

    def start_host(self):
        self._write("home/.config/lxqt/lxqt.conf", LXQT)
        self._write("home/.config/lxqt/panel.conf", LXQT_PANEL)
        self.start_helper("lxqt-panel")
        self.wait_for_host()


class Plasma(Panel):
    PROGRAMS = ("plasmashell", "kwin_x11", "kded5")
    AREA = (WIDTH - 420, HEIGHT - 40, 420, 40)
    ITEM_PICTURE = (WIDTH - 420, HEIGHT - 220, 420, 220)
    POPOVER_PICTURE = (WIDTH - 480, HEIGHT - 420, 480, 420)

    def _start_window_manager(self):
        self.environment |= {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
                             "KWIN_COMPOSE": "N", "QT_QUICK_BACKEND": "software"}
        self._start("kwin_x11")
        wait_for(lambda: "0x" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
                 "the window manager")

    def start_host(self):
        self.start_helper("kded5")
        wait_for(lambda: self.has_owner("org.kde.kded5"), "kded5")
        self.run("gdbus", "call", "--session", "-d", "org.kde.kded5", "-o", "/kded", "-m",
                 "org.kde.kded5.loadModule", "statusnotifierwatcher")
        self.start_helper("plasmashell")
        self.wait_for_host()


class Gnome(Panel):
    """GNOME Shell with its extension for status items."""

    PROGRAMS = ("gnome-shell", "dbus-daemon")
    EXTENSIONS = "'ubuntu-appindicators@ubuntu.com'"

    def _start_window_manager(self):
        pass  # the shell is one

    def start_host(self):
        self._write("home/.config/glib-2.0/settings/keyfile", GNOME.format(
            extensions=self.EXTENSIONS, binding=GNOME_BINDING, program=desktops.PROGRAM,
            binding_section=GNOME_BINDING[1:]))
        self.environment["XDG_CURRENT_DESKTOP"] = "GNOME"
        # It wants a system bus with a login manager.
        self.environment["DBUS_SYSTEM_BUS_ADDRESS"] = self._start_and_read(lambda descriptor: [
            "dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=" + descriptor])
        self.start_helper("/usr/bin/python3", "-m", "dbusmock", "--system", "--template", "logind")
        self.start_helper("gnome-shell", "--x11", "--sm-disable")
        wait_for(lambda: self.has_owner("org.gnome.Shell"), "the shell")
        self.start_helper("/usr/libexec/gsd-media-keys")
        self.wait_for_shell()
        self.leave_overview()
        self.wait_for_still_picture()

    def wait_for_shell(self):
        wait_for(self.has_host, "the panel")

    def leave_overview(self):
        """It is where a session begins, once the shell has come up."""
        shell = ("org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell")
        wait_for(lambda: self.get(*shell, "OverviewActive") == "true", "the overview")
        self.wait_for_still_picture()
        self.run("gdbus", "call", "--session", "-d", shell[0], "-o", shell[1], "-m",
                 "org.freedesktop.DBus.Properties.Set", shell[2], "OverviewActive", "<false>",
                 check=True)
        wait_for(lambda: self.get(*shell, "OverviewActive") == "false", "the end of the overview")


class GnomeAlone(Gnome):
    """GNOME Shell as it comes: nothing shows items, a key opens the popover."""

    EXTENSIONS = ""

    def wait_for_shell(self):
        wait_for(lambda: self.has_owner("org.gnome.Shell"), "the shell")

    ITEM_PICTURE = None

    def open(self):
        self.key("super+g")


class Sway(Panel):
    """sway, which is a Wayland desktop, in a window of the display; with waybar."""

    PROGRAMS = ("sway", "swaymsg", "waybar", "Xwayland")
    POPOVER_PICTURE = (400, 0, WIDTH - 400, 480)

    def _start_window_manager(self):
        pass  # sway is one

    def start_host(self):
        self._write("home/.config/sway/config", SWAY.format(
            width=WIDTH, height=HEIGHT, program=desktops.PROGRAM, folder=self.folder))
        self._write("home/.config/waybar/config", WAYBAR)
        self.environment |= {"WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman",
                             "LIBSEAT_BACKEND": "noop", "XDG_CURRENT_DESKTOP": "sway",
                             "SWAYSOCK": os.path.join(self.folder, "run", "sway.sock"),
                             "XDG_SESSION_TYPE": "wayland"}
        self.start_helper("sway")
        self.wait_for_host()

    def start_torvi(self, *arguments, **environment):
        """Torvi as a child of sway's: its windows go through XWayland."""
        with open(os.path.join(self.folder, "displays"), encoding="utf-8") as file:
            wayland, x11 = file.read().split()
        return super().start_torvi(*arguments, **{"WAYLAND_DISPLAY": wayland, "DISPLAY": x11,
                                                  "XDG_CURRENT_DESKTOP": "sway", **environment})

    def open(self):
        """By the key first, which has to close it as well; then as elsewhere."""
        self.key("super+g")
        wait_for(self.popover, "the popover by its key")
        self.key("super+g")
        wait_for(lambda: not self.popover(), "no popover by its key")
        super().open()

    def popover(self):
        def find(node):
            if node.get("name") == "Torvi" and node["rect"]["width"] == 400:
                return node["rect"]["x"], node["rect"]["y"]
            return next(filter(None, map(find, node["nodes"] + node["floating_nodes"])), None)
        return find(json.loads(self.run("swaymsg", "-t", "get_tree", check=True)))


PANELS = {"mate": Mate, "xfce": Xfce, "lxqt": LXQt, "plasma": Plasma, "gnome": Gnome,
          "gnome-alone": GnomeAlone, "sway": Sway}
