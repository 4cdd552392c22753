// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

// A list of any length, of which only the rows on screen are made: model, delegate (an ActionRow),
// header, footer, section. The current row and its buttons are stops of the Tab key, and the arrow
// and page keys, Home and End go through the rows. When the focused row goes, its neighbour is
// focused instead.
ListView {
    id: root

    property string label: ""
    readonly property bool scrolls: contentHeight > height
    readonly property T.Control focusedControl: activeFocus ? Window.activeFocusItem as T.Control : null
    readonly property int pageStep: 10
    // Whether what has the focus, or had it until its row went, shows a focus mark.
    property bool isFocusMarked: false

    clip: true
    // A press with the mouse belongs to what is pressed, also when the mouse moves.
    interactive: false
    keyNavigationEnabled: false
    highlightMoveDuration: 0
    highlightFollowsCurrentItem: false
    boundsBehavior: Flickable.StopAtBounds

    onFocusedControlChanged: if (focusedControl) keepMark(focusedControl)
    onActiveFocusChanged: if (!activeFocus) isFocusMarked = false
    onContentHeightChanged: scrollBy(0)
    onHeightChanged: scrollBy(0)

    Keys.onPressed: event => {
        const row = rowAfter(event.key)
        event.accepted = row >= 0 && event.modifiers === Qt.NoModifier
        if (event.accepted)
            focusRow(row)
    }

    Accessible.role: Accessible.List
    Accessible.name: label

    T.ScrollBar.vertical: ScrollIndicator {
        objectName: "scrollIndicator"
    }

    ScrollWheel {
        enabled: root.scrolls
        onScrolled: distance => root.scrollBy(distance)
    }

    ScrollDrag {
        enabled: root.scrolls
        onScrolled: distance => root.scrollBy(distance)
    }

    // The row that a key leads to; -1 for none.
    function rowAfter(key: int): int {
        switch (key) {
        case Qt.Key_Up: return currentIndex > 0 ? currentIndex - 1 : -1
        case Qt.Key_Down: return currentIndex + 1 < count ? currentIndex + 1 : -1
        case Qt.Key_PageUp: return Math.max(0, currentIndex - pageStep)
        case Qt.Key_PageDown: return Math.min(count - 1, currentIndex + pageStep)
        case Qt.Key_Home: return 0
        case Qt.Key_End: return count - 1
        }
        return -1
    }

    function focusRow(row: int) {
        isFocusMarked = true
        currentIndex = row
        reveal(row)
        currentItem.forceActiveFocus(Qt.TabFocusReason)
    }

    // With what stands above the first row and below the last.
    function reveal(row: int) {
        positionViewAtIndex(row, ListView.Contain)
        if (row === 0)
            positionViewAtBeginning()
        else if (row === count - 1)
            positionViewAtEnd()
    }

    function scrollBy(distance: real) {
        contentY = Math.max(originY, Math.min(originY + contentHeight - height, contentY + distance))
    }

    // A view gives the focus to its current row without a mark.
    function keepMark(control: T.Control) {
        if (isFocusMarked && control.focusReason === Qt.OtherFocusReason)
            control.focusReason = Qt.TabFocusReason
        isFocusMarked = control.visualFocus
    }
}
