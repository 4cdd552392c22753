// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// A button without a frame: its size is that of its label. It shows itself under the pointer.
// text, symbolName, textStyle, weight, foreground; clicked().
ButtonBase {
    id: root

    padding: 0
    // What shows itself under the pointer is what can be pressed.
    containmentMask: background

    background: Rectangle {
        anchors.fill: parent
        anchors.margins: -4
        radius: 5
        color: root.down ? Theme.colors.pressed : root.hovered ? Theme.colors.hovered : "transparent"
        visible: root.enabled

        FocusRing {
            target: root
            gap: -1
        }
    }
}
