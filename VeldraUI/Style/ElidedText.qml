// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

// A one-line text that is shortened when it is too long (`elide`: at the end unless set), and then
// tells its full self in a tool tip: under the pointer, or while `revealed` (set it to the
// visualFocus of the control that the text stands in, for the keyboard).
StyledText {
    id: root

    property bool revealed: false
    readonly property bool toolTipShown: toolTip.item ? (toolTip.item as HelpTip).visibleNow : false

    // Rows stand in one line, whatever their script.
    horizontalAlignment: Text.AlignLeft
    elide: Text.ElideRight
    maximumLineCount: 1
    wrapMode: Text.NoWrap

    // Most texts are not shortened.
    Loader {
        id: toolTip

        anchors.fill: parent
        active: root.truncated

        sourceComponent: HelpTip {
            help: root.text
            shown: hover.hovered || root.revealed

            HoverHandler {
                id: hover
            }
        }
    }
}
