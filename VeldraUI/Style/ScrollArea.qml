// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

// Scrolls one child that is higher than the area: `ScrollArea { Column { width: parent.width } }`.
// The wheel, the handle, touch, and the keys that nothing inside takes (arrows, Page Up and Down,
// Home, End) scroll it; what the Tab key reaches is brought into view. reveal(item) does that for
// any item in it. `scrolls`: there is something to scroll.
Flickable {
    id: root

    readonly property bool scrolls: contentHeight > height
    readonly property T.Control focusedControl: Window.activeFocusItem as T.Control
    readonly property T.TextField focusedField: Window.activeFocusItem as T.TextField
    readonly property Item reached: (focusedControl && focusedControl.visualFocus) || focusedField
                                    ? Window.activeFocusItem : null
    readonly property real line: 40

    contentWidth: width
    contentHeight: contentItem.childrenRect.height
    clip: true
    // A press with the mouse belongs to what is pressed, also when the mouse moves.
    interactive: false

    onReachedChanged: if (reached) reveal(reached)
    onContentHeightChanged: scrollBy(0)
    onHeightChanged: scrollBy(0)

    Keys.onPressed: event => {
        const distance = distanceOf(event.key)
        event.accepted = scrolls && distance !== 0 && event.modifiers === Qt.NoModifier
        if (event.accepted)
            scrollBy(distance)
    }

    T.ScrollBar.vertical: ScrollIndicator {
        objectName: "scrollIndicator"
    }

    ScrollWheel {
        enabled: root.scrolls
        line: root.line
        onScrolled: distance => root.scrollBy(distance)
    }

    ScrollDrag {
        enabled: root.scrolls
        onScrolled: distance => root.scrollBy(distance)
    }

    function distanceOf(key: int): real {
        switch (key) {
        case Qt.Key_Up: return -line
        case Qt.Key_Down: return line
        case Qt.Key_PageUp: return line - height
        case Qt.Key_PageDown: return height - line
        case Qt.Key_Home: return -contentHeight
        case Qt.Key_End: return contentHeight
        }
        return 0
    }

    function scrollBy(distance: real) {
        contentY = Math.max(0, Math.min(contentHeight - height, contentY + distance))
    }

    function reveal(item: Item) {
        let ancestor = item
        while (ancestor && ancestor !== contentItem)
            ancestor = ancestor.parent
        if (!ancestor)
            return
        const margin = 8
        const top = item.mapToItem(contentItem, 0, 0).y - margin
        const bottom = top + item.height + 2 * margin
        if (top < contentY)
            scrollBy(top - contentY)
        else if (bottom > contentY + height)
            scrollBy(bottom - contentY - height)
    }
}
