// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// The symbol above the text of a TabItem.
Item {
    id: root

    required property string symbolName
    required property string text
    required property bool chosen
    readonly property color foreground: chosen ? Theme.colors.link : Theme.colors.secondary

    implicitWidth: label.implicitWidth
    implicitHeight: symbol.height + 3 + label.implicitHeight

    Symbol {
        id: symbol

        anchors.horizontalCenter: parent.horizontalCenter
        name: root.symbolName
        size: 14
        color: root.foreground
    }

    Text {
        id: label

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        text: root.text
        textFormat: Text.PlainText
        color: root.foreground
        font.pixelSize: Typography.caption.pixelSize
        font.weight: root.chosen ? Font.Medium : Font.Normal
    }
}
