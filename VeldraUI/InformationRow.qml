// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// One line of the active-context card: `symbolName`, `label`, `value`, and whether it is
// `highlighted`.
Item {
    id: root

    required property string symbolName
    required property string label
    required property string value
    property bool highlighted: false

    implicitHeight: Math.max(symbol.height, labelText.height, valueText.height)

    Item {
        id: symbolFrame

        width: 14
        height: parent.height

        Symbol {
            id: symbol

            objectName: "symbol"
            anchors.centerIn: parent
            name: root.symbolName
            color: root.highlighted ? Theme.colors.orange : Theme.colors.secondary
        }
    }

    ElidedText {
        id: labelText

        objectName: "label"
        anchors.verticalCenter: parent.verticalCenter
        x: symbolFrame.width + 6
        width: 90
        text: root.label
        textStyle: Typography.callout
        color: Theme.colors.secondary
    }

    ElidedText {
        id: valueText

        objectName: "value"
        anchors.verticalCenter: parent.verticalCenter
        x: labelText.x + labelText.width + 6
        width: parent.width - x
        elide: Text.ElideMiddle
        text: root.value
        textStyle: Typography.callout
        weight: Font.Medium
        color: root.highlighted ? Theme.colors.orange : Theme.colors.primary
    }
}
