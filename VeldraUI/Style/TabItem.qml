// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// One tab of a TabBar: text, symbolName.
T.TabButton {
    id: root

    property string symbolName: ""

    implicitWidth: Math.max(72, implicitContentWidth + leftPadding + rightPadding)
    width: implicitWidth
    implicitHeight: 44
    horizontalPadding: 8
    verticalPadding: 4
    hoverEnabled: true

    contentItem: TabLabel {
        opacity: root.enabled ? 1 : 0.4
        symbolName: root.symbolName
        text: root.text
        chosen: root.checked
    }

    background: Rectangle {
        radius: 6
        color: root.checked || root.down ? Theme.colors.pressed
                                         : root.hovered ? Theme.colors.hovered : "transparent"

        FocusRing {
            target: root
            gap: -2
        }
    }

    Keys.onReturnPressed: toggle()

    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.selected: checked
    Accessible.onPressAction: if (enabled) toggle()
}
