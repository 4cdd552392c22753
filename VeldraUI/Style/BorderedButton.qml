// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// The usual button. `small` for the small control size; `destructive` for what cannot be undone.
// text, symbolName, textStyle, weight; clicked().
ButtonBase {
    id: root

    property bool small: false
    property bool destructive: false

    textStyle: small ? Typography.callout : Typography.body
    foreground: destructive ? Theme.colors.red : Theme.colors.primary
    horizontalPadding: small ? 8 : 12
    verticalPadding: 2

    background: Rectangle {
        implicitHeight: root.small ? 22 : 26
        radius: root.small ? 5 : 6
        opacity: root.enabled ? 1 : 0.5
        color: root.down ? Theme.colors.controlPressed
                         : root.hovered ? Theme.colors.controlHovered : Theme.colors.control
        border.color: Theme.colors.controlBorder

        FocusRing {
            target: root
        }
    }
}
