// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

// A tool tip that is made only when it is wanted: `help` is its text (none when empty), `shown` while
// it is wanted; it belongs to the item that this stands in. `visibleNow`: it can be read.
Loader {
    id: root

    required property string help
    required property bool shown
    readonly property bool visibleNow: item ? (item as ToolTip).visible : false

    active: shown && help !== "" && visible
    source: Qt.resolvedUrl("ToolTip.qml") // beside this file, whoever uses it

    onLoaded: {
        const tip = item as ToolTip
        tip.parent = parent
        tip.text = Qt.binding(() => root.help)
        tip.visible = true
    }
}
