#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

# Layers include only to their left, and the logic includes nothing graphical.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

failures=0

# allow LAYER REGEX: every quoted include of LAYER must match REGEX.
allow() {
    local layer=$1 regex=$2 found
    [[ -d $layer ]] || return 0
    found=$(grep -rnE '^#include "' --include='*.h' --include='*.cpp' "$layer" |
        grep -vE "#include \"($regex)" || true)
    if [[ -n $found ]]; then
        printf '%s must not include:\n%s\n' "$layer" "$found"
        failures=1
    fi
}

# forbid LAYER REGEX: no system include of LAYER may match REGEX.
forbid() {
    local layer=$1 regex=$2
    if grep -rnE "^#include <($regex)" --include='*.h' --include='*.cpp' "$layer"; then
        printf '%s must not include the above\n' "$layer"
        failures=1
    fi
}

allow GCloudModels 'GCloudModels/'
allow GCloudCLI 'GCloud(Models|CLI)/'
allow GCloudStateManager 'GCloud(Models|CLI|StateManager)/'
allow torvictl '(GCloud(Models|CLI|StateManager)|torvictl)/|[A-Za-z]+\.moc'
allow VeldraUI '(GCloud(Models|CLI|StateManager)|VeldraUI)/'
allow Torvi '(GCloud(Models|CLI|StateManager)|VeldraUI|Torvi)/'
# The program loads the views when they are first shown: outside their folder nothing knows them.
if grep -rnE '^#include ("Torvi/Quick/|"VeldraUI/|<(QtQuick|QtQml|QQ))' --exclude-dir=Quick Torvi |
    grep -vE '"VeldraUI/(ADCWords|Clipboard)\.h"'; then
    echo 'Torvi must not include the above outside Torvi/Quick'
    failures=1
fi

graphical='QtGui|QtQuick|QtQml|QtWidgets|QtDBus|QGui|QWindow|QImage|QPixmap|QColor|QIcon|QQ|QDBus|QWidget|QClipboard|xcb|X11'
for layer in GCloudModels GCloudCLI GCloudStateManager torvictl; do
    forbid "$layer" "$graphical"
done

exit "$failures"
