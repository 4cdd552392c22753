// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// One impersonation that is in force: `symbolName`, `email`, `kind` ("CLI" or "ADC"), and the button
// that ends it: clear().
Item {
    id: root

    required property string symbolName
    required property string email
    required property string kind

    signal clear()

    implicitHeight: Math.max(symbol.height, texts.height, clearButton.height)

    Symbol {
        id: symbol

        objectName: "symbol"
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbolName
        color: Theme.colors.orange
    }

    Column {
        id: texts

        anchors.verticalCenter: parent.verticalCenter
        x: symbol.width + 6
        width: clearButton.x - 12 - x
        spacing: 1

        ElidedText {
            objectName: "email"
            width: parent.width
            text: root.email
            elide: Text.ElideMiddle
        }

        StyledText {
            objectName: "kind"
            text: root.kind
            textStyle: Typography.caption
            color: Theme.colors.secondary
        }
    }

    BorderedButton {
        id: clearButton

        objectName: "clearButton"
        anchors.verticalCenter: parent.verticalCenter
        x: root.width - width
        text: qsTr("Clear")
        textStyle: Typography.callout
        small: true
        Accessible.description: qsTr("%1 impersonation of %2").arg(root.kind).arg(root.email)

        onClicked: root.clear()
    }
}
