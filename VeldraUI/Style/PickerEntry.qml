// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// One line in the menu of a PopUpPicker; `chosen` has the check mark.
T.ItemDelegate {
    id: root

    property bool chosen: false

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 24
    leftPadding: 24
    rightPadding: 8

    contentItem: ElidedText {
        text: root.text
        textStyle: Typography.callout
        color: root.highlighted ? Theme.colors.onAccent : Theme.colors.primary
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    background: Rectangle {
        radius: 4
        color: root.highlighted ? Theme.colors.accent : "transparent"

        Symbol {
            x: 6
            anchors.verticalCenter: parent.verticalCenter
            visible: root.chosen
            name: "checkmark"
            size: Typography.caption.pixelSize
            color: root.highlighted ? Theme.colors.onAccent : Theme.colors.primary
        }
    }

    Accessible.role: Accessible.ListItem
    Accessible.name: text
    Accessible.selected: chosen
    Accessible.onPressAction: if (enabled) clicked()
}
