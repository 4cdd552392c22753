// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// The symbol and the text inside a button, side by side, centred.
Item {
    id: root

    property string symbolName: ""
    property string text: ""
    property font textStyle: Typography.callout
    property int weight: textStyle.weight
    property real spacing: 5
    property color color: Theme.colors.primary

    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight

    Row {
        id: row

        anchors.centerIn: parent
        spacing: root.spacing

        Loader {
            anchors.verticalCenter: parent.verticalCenter
            active: root.symbolName !== ""
            visible: active

            sourceComponent: ReplacingSymbol {
                name: root.symbolName
                size: root.textStyle.pixelSize
                color: root.color
            }
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: root.text
            textFormat: Text.PlainText
            color: root.color
            font.pixelSize: root.textStyle.pixelSize
            font.weight: root.weight
        }
    }
}
