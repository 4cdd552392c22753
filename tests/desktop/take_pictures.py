#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""take_pictures.py PROGRAM FOLDER [DESKTOP...]: what shows of Torvi on each desktop, in pictures.

Runs Torvi over the demo world, opens its popover as that desktop's people do, and leaves a picture
of the panel and one of the popover. A desktop that is not installed is passed over, by name. The
pictures are for people to look at; docs/desktops.md shows them.
"""

import os
import shutil
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HERE, os.path.join(os.path.dirname(HERE), "standin")]
sys.dont_write_bytecode = True

import demo  # noqa: E402  (their folders have just been added)
import desktop as desktops  # noqa: E402
import panels  # noqa: E402


def take(desktop, name, folder):
    torvi = desktop.start_torvi()
    desktops.wait_for(lambda: desktop.item_property(torvi, "Id"), "the status item on the bus")
    desktop.open()
    desktops.wait_for(desktop.popover, "the popover")
    desktop.run("xdotool", "mousemove", "300", "600", check=True)  # away from tool tips
    desktop.wait_for_still_picture()
    picture = os.path.join(folder, name)
    desktop.crop(picture + "-popover.png", desktop.POPOVER_PICTURE)
    desktop.key("Escape")
    desktops.wait_for(lambda: not desktop.popover(), "the popover's end")
    if desktop.ITEM_PICTURE:
        desktop.point_at_item()
        desktop.crop(picture + "-item.png", desktop.ITEM_PICTURE)
    doctor = desktop.start_torvi("--doctor")
    doctor.wait()
    print(name + ":", *(line for line in doctor.output().splitlines()
                        if line.startswith(("Session", "Panel", "Clicks", "Clipboard"))),
          torvi.output(), sep="\n    ", flush=True)


def main():
    desktops.PROGRAM, folder = map(os.path.abspath, sys.argv[1:3])
    os.makedirs(folder, exist_ok=True)
    for name in sys.argv[3:] or panels.PANELS:
        panel = panels.PANELS[name]
        missing = [program for program in panel.PROGRAMS if not shutil.which(program)]
        if missing:
            print(f"{name}: not installed: {' '.join(missing)}")
            continue
        with demo.DemoWorld(pace="0") as world:
            desktop = panel(world.environment())
            try:
                take(desktop, name, folder)
            finally:
                desktop.close()


if __name__ == "__main__":
    main()
