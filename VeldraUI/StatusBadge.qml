// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// A word on a tint of its colour: `text`, `color`, and an optional symbol, `icon`.
Item {
    id: root

    property string text: ""
    property color color: Theme.colors.green
    property string icon: ""
    readonly property real lineHeight: Math.max(icon === "" ? 0 : symbol.height, label.height)

    implicitWidth: label.x + label.width + 6
    implicitHeight: 2 + lineHeight + 2

    Rectangle {
        objectName: "tint"
        anchors.fill: parent
        radius: 4
        color: Qt.alpha(root.color, 0.15)
    }

    Symbol {
        id: symbol

        objectName: "symbol"
        x: 6
        y: 2 + (root.lineHeight - height) / 2
        visible: root.icon !== ""
        name: root.icon
        size: Typography.caption.pixelSize
        color: root.color
    }

    StyledText {
        id: label

        objectName: "text"
        x: root.icon === "" ? 6 : symbol.x + symbol.width + 4
        y: 2 + (root.lineHeight - height) / 2
        text: root.text
        textStyle: Typography.callout
        weight: Font.Medium
        color: root.color
    }
}
