// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

// What the lists of rows share: one stop of the Tab key for all rows, and the arrow and page keys to
// go through them. The row at `currentRow` makes itself the `currentItem`. An arrow key that leads out
// of the rows is left to whoever knows what comes next. When the focused row goes, its neighbour is
// focused instead.
FocusScope {
    id: root

    property int count: 0
    property int currentRow: 0
    property Item currentItem: null

    readonly property int pageStep: 10
    property bool isMovingByKey: false
    // Whether the row that has the focus, or had it until it went, shows a focus mark.
    property bool isFocusMarked: false

    visible: count > 0
    activeFocusOnTab: true

    onCurrentItemChanged: if (currentItem && !activeFocus) currentItem.focus = true

    Keys.onUpPressed: event => event.accepted = step(-1)
    Keys.onDownPressed: event => event.accepted = step(1)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_PageDown || event.key === Qt.Key_PageUp) {
            event.accepted = true
            focusRow(currentRow + (event.key === Qt.Key_PageDown ? pageStep : -pageStep))
        }
    }
    // To what comes before the rows, not to the rows as a whole.
    Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    // Bound to the rows that there are.
    function focusRow(row: int) {
        isMovingByKey = true
        currentRow = Math.max(0, Math.min(row, count - 1))
        if (currentItem)
            currentItem.forceActiveFocus(Qt.TabFocusReason)
        isMovingByKey = false
    }

    // Of a row that is current now. While rows move, one may be so in passing.
    function adopt(row: T.AbstractButton) {
        if (!isMovingByKey && currentItem && currentItem.activeFocus)
            return
        currentItem = row
        if (activeFocus && !isMovingByKey)
            row.forceActiveFocus(isFocusMarked ? Qt.TabFocusReason : Qt.OtherFocusReason)
    }

    // Of a row that has the focus.
    function enter(row: T.AbstractButton, place: int) {
        currentRow = place
        isFocusMarked = row.visualFocus
    }

    function step(by: int): bool {
        const row = currentRow + by
        if (row < 0 || row >= count)
            return false
        focusRow(row)
        return true
    }
}
