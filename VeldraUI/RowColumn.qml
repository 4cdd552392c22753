// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

// A short list of rows, one below the other, 4 points apart: `model`, and a `delegate` that is a
// ListRow.
RowArea {
    id: root

    property alias model: repeater.model
    property alias delegate: repeater.delegate

    implicitHeight: column.height
    count: repeater.count

    onCountChanged: {
        currentRow = Math.max(0, Math.min(currentRow, count - 1))
        if (activeFocus && currentItem && !currentItem.activeFocus)
            adopt(currentItem)
    }

    Column {
        id: column

        width: root.width
        spacing: 4

        Repeater {
            id: repeater
        }
    }
}
