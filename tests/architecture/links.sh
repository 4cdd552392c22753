#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

# links.sh PROGRAM: PROGRAM, which holds all of the logic, loads no windowing or D-Bus library.
set -euo pipefail

loaded=$(ldd "$1")
if grep -E 'libQt6(Gui|Widgets|Qml|Quick|DBus|Svg)|libxcb|libX11|libwayland|libdbus' <<<"$loaded"; then
    echo "$1 must not load the above"
    exit 1
fi
grep -q libQt6Core <<<"$loaded" # or the test would pass on anything
