#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""show.py PROGRAM FOLDER: Torvi on a virtual desktop with a real panel, in pictures.

For machines without a display: starts Torvi as the caller's user would, opens the popover and the
manager window, and leaves a picture of each in the folder.
"""

import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
sys.dont_write_bytecode = True

import desktop as desktops  # noqa: E402  (its folder has just been added)


def main():
    program, folder = map(os.path.abspath, sys.argv[1:3])
    os.makedirs(folder, exist_ok=True)
    os.environ["TORVI_PICTURES"] = folder
    desktops.PROGRAM = program
    desktop = desktops.Desktop(world=dict(os.environ))
    try:
        desktop.launch_torvi()
        desktop.click(desktop.item_position())
        desktops.wait_for(desktop.popover, "the popover")
        show(desktop, "popover")
        desktop.ask_torvi("--manager")
        desktops.wait_for(desktop.manager, "the manager window")
        show(desktop, "manager")
    finally:
        desktop.close()


def show(desktop, name):
    desktop.run("xdotool", "mousemove", "5", "450", check=True)  # away from tool tips
    desktop.wait_for_still_picture()
    desktop.picture(name)
    print(os.path.join(os.environ["TORVI_PICTURES"], name + ".png"))


if __name__ == "__main__":
    print("There is no display here: Torvi runs on a virtual one, with a panel. The pictures:",
          flush=True)
    main()
