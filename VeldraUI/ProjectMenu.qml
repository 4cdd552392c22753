// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import VeldraUI
import VeldraUI.Style

// The menu of a project's row among `rows`: pins the project, or unpins it.
ContextMenu {
    id: root

    required property ProjectRows rows
    property string projectId: ""
    property bool isPinned: false
    property bool byKeyboard: false

    objectName: "projectMenu"

    onClosed: if (byKeyboard) rows.focusRow(rows.currentRow)

    MenuEntry {
        objectName: "pinEntry"
        text: root.isPinned ? qsTr("Unpin") : qsTr("Pin")

        onTriggered: root.rows.pinToggled(root.projectId)
    }

    // The row may stand for another project by the time that the user has chosen.
    function openFor(row: ProjectRow, position: point) {
        projectId = row.projectId
        isPinned = row.isPinned
        byKeyboard = row.visualFocus
        popup(row, position.x, position.y)
    }
}
