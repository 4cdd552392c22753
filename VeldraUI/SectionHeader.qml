// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// The heading of a section: `title`, shown in upper case, and an optional symbol, `icon`.
Item {
    id: root

    property string title: ""
    property string icon: ""

    implicitWidth: row.width + 8
    implicitHeight: row.height + 10

    Row {
        id: row

        x: 4
        y: 8
        spacing: 4

        Symbol {
            objectName: "symbol"
            anchors.verticalCenter: parent.verticalCenter
            visible: root.icon !== ""
            name: root.icon
            color: Theme.colors.secondary
        }

        StyledText {
            objectName: "title"
            anchors.verticalCenter: parent.verticalCenter
            text: root.title.toUpperCase()
            textStyle: Typography.callout
            weight: Font.DemiBold
            color: Theme.colors.secondary
            Accessible.role: Accessible.Heading
        }
    }
}
