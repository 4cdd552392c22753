// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// The mark of whatever is `active`. Most rows are not: theirs is never made.
Loader {
    sourceComponent: StatusBadge {
        objectName: "badge"
        text: qsTr("active")
        color: Theme.colors.green
    }
}
