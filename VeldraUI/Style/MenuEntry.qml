// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// One line of a ContextMenu: text, symbolName; triggered().
T.MenuItem {
    id: root

    property string symbolName: ""

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 24
    horizontalPadding: 8
    spacing: 6

    readonly property color foreground: highlighted ? Theme.colors.onAccent : Theme.colors.primary

    Theme.dark: menu && menu.parent ? menu.parent.Theme.dark : true

    contentItem: Row {
        spacing: root.spacing
        opacity: root.enabled ? 1 : 0.4

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.symbolName !== ""
            name: root.symbolName
            color: root.foreground
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            textFormat: Text.PlainText
            font.pixelSize: Typography.callout.pixelSize
            color: root.foreground
        }
    }

    background: Rectangle {
        radius: 4
        color: Theme.colors.accent
        visible: root.highlighted && root.enabled
    }

    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.onPressAction: if (enabled) {
        triggered()
        if (menu)
            menu.dismiss()
    }
}
