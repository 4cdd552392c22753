// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

// Scrolls one child that is higher than the area: `ScrollArea { Column { width: parent.width } }`.
// The wheel, the handle and touch scroll it; what the keyboard reaches is brought into view.
// reveal(item) does that for any item in it.
Flickable {
    id: root

    readonly property Item focused: Window.activeFocusItem

    contentWidth: width
    contentHeight: contentItem.childrenRect.height
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.VerticalFlick

    onFocusedChanged: revealFocused()

    T.ScrollBar.vertical: ScrollIndicator {}

    function revealFocused() {
        const control = focused as T.Control
        const field = focused as T.TextField
        if ((control && control.visualFocus) || (field && field.activeFocus))
            reveal(focused)
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
        const lowest = Math.max(0, contentHeight - height)
        if (top < contentY)
            contentY = Math.max(0, top)
        else if (bottom > contentY + height)
            contentY = Math.min(lowest, bottom - height)
    }
}
