#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

# links.sh PROGRAM REGEX: PROGRAM at its start loads no library that REGEX matches.
set -euo pipefail

loaded=$(ldd "$1")
if grep -E "$2" <<<"$loaded"; then
    echo "$1 must not load the above"
    exit 1
fi
grep -q libQt6Core <<<"$loaded" # or the test would pass on anything
