// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// The heading of a section: `title`, shown in upper case, and an optional symbol, `icon`.
Item {
    id: root

    property string title: ""
    property string icon: ""
    readonly property real lineHeight: Math.max(icon === "" ? 0 : symbol.height, titleText.height)

    implicitWidth: titleText.x + titleText.width + 4
    implicitHeight: 8 + lineHeight + 2

    Symbol {
        id: symbol

        objectName: "symbol"
        x: 4
        y: 8 + (root.lineHeight - height) / 2
        visible: root.icon !== ""
        name: root.icon
        color: Theme.colors.secondary
    }

    StyledText {
        id: titleText

        objectName: "title"
        x: root.icon === "" ? 4 : symbol.x + symbol.width + 4
        y: 8 + (root.lineHeight - height) / 2
        text: root.title.toUpperCase()
        textStyle: Typography.callout
        weight: Font.DemiBold
        color: Theme.colors.secondary
        Accessible.role: Accessible.Heading
    }
}
