// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// What a list shows instead of rows: symbolName, title, description, centred.
Column {
    id: root

    property string symbolName: ""
    property string title: ""
    property string description: ""

    width: parent ? parent.width : implicitWidth
    spacing: 6

    Symbol {
        objectName: "symbol"
        anchors.horizontalCenter: parent.horizontalCenter
        visible: name !== ""
        name: root.symbolName
        size: 32
        color: Theme.colors.tertiary
    }

    StyledText {
        objectName: "title"
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        text: root.title
        textStyle: Typography.title
        weight: Font.Medium
    }

    StyledText {
        objectName: "description"
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        visible: text !== ""
        text: root.description
        textStyle: Typography.callout
        color: Theme.colors.secondary
    }
}
