// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// What all buttons share: symbol and text, Return as well as Space, and the press that assistive
// technology asks for. `help` is told in a tool tip, and is the name of a button without text.
// Signal: clicked().
T.Button {
    id: root

    // The symbol before the text; empty shows none.
    property string symbolName: ""
    property string help: ""
    property font textStyle: Typography.callout
    property int weight: textStyle.weight
    property color foreground: Theme.colors.primary

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(implicitContentHeight + topPadding + bottomPadding, implicitBackgroundHeight)
    spacing: 5

    hoverEnabled: true

    contentItem: ButtonLabel {
        opacity: root.enabled ? 1 : 0.4
        symbolName: root.symbolName
        text: root.text
        textStyle: root.textStyle
        weight: root.weight
        spacing: root.spacing
        color: root.foreground
    }

    Keys.onReturnPressed: event => pressByKey(event)
    Keys.onEnterPressed: event => pressByKey(event)

    Accessible.role: Accessible.Button
    Accessible.name: text !== "" ? text : help
    // There is no accessible state for what is disabled.
    Accessible.description: enabled ? help : (help === "" ? "" : help + ", ") + qsTr("unavailable")
    Accessible.onPressAction: if (enabled) clicked()

    HelpTip {
        objectName: "helpTip"
        help: root.help
        shown: root.hovered || root.visualFocus
    }

    function pressByKey(event: KeyEvent) {
        if (!event.isAutoRepeat)
            clicked()
    }
}
