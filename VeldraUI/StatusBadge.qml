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

    implicitWidth: row.width + 12
    implicitHeight: row.height + 4

    Rectangle {
        objectName: "tint"
        anchors.fill: parent
        radius: 4
        color: Qt.alpha(root.color, 0.15)
    }

    Row {
        id: row

        x: 6
        y: 2
        spacing: 4

        Symbol {
            objectName: "symbol"
            anchors.verticalCenter: parent.verticalCenter
            visible: root.icon !== ""
            name: root.icon
            size: Typography.caption.pixelSize
            color: root.color
        }

        StyledText {
            objectName: "text"
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            textStyle: Typography.callout
            weight: Font.Medium
            color: root.color
        }
    }
}
