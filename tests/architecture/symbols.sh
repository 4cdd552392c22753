#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

# symbols.sh PROGRAM MODULE: MODULE has no logic of its own and finds all that it uses in PROGRAM. What
# is missing would end the program only when it is called.
set -euo pipefail

# The names of ours among the symbols that `nm` lists.
ours() {
    nm -D "$@" | grep -oE '_ZT?[A-Z]*K?5torvi[A-Za-z0-9_]*' | sort -u
}

used=$(ours --undefined-only "$2")
grep -q AuthStateManager <<<"$used" # or the test would pass on anything
if missing=$(comm -23 - <(ours --defined-only "$1") <<<"$used") && [[ -n $missing ]]; then
    printf '%s lacks:\n%s\n' "$1" "$missing"
    exit 1
fi
