# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The settings of the desktops in panels.py, in their own formats."""

LXQT_PANEL = """\
panels=panel1
[panel1]
plugins=spacer,statusnotifier
position=Top
desktop=0
height=32
iconSize=22
[spacer]
type=spacer
[statusnotifier]
type=statusnotifier
alignment=Right
"""

LXQT = "[General]\ntheme=Clearlooks\nicon_theme=breeze\n"  # as Debian has it

GNOME = """\
[org/gnome/shell]
enabled-extensions=[{extensions}]
disable-user-extensions=false
welcome-dialog-last-shown-version='99'

[org/gnome/desktop/interface]
enable-animations=false

[org/gnome/desktop/notifications]
show-banners=false

[org/gnome/settings-daemon/plugins/media-keys]
custom-keybindings=['{binding}/']

[{binding_section}]
name='Torvi'
binding='<Super>g'
command='{program} --toggle'
"""
GNOME_BINDING = "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/torvi"


SWAY = """\
output * resolution {width}x{height}
output * background #305070 solid_color
bar {{
    swaybar_command waybar
}}
bindsym Mod4+g exec {program} --toggle
exec echo $WAYLAND_DISPLAY $DISPLAY > {folder}/displays
"""

WAYBAR = """\
{
    "layer": "top", "position": "top", "height": 28,
    "modules-left": ["sway/workspaces"], "modules-right": ["tray"]
}
"""
