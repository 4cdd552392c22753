// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// The button that does what the page is there for, filled with the accent colour.
// text, symbolName, small, textStyle, weight; clicked().
ButtonBase {
    id: root

    property bool small: false

    textStyle: small ? Typography.callout : Typography.body
    weight: Font.Medium
    foreground: enabled ? Theme.colors.onAccent : Theme.colors.primary
    horizontalPadding: small ? 8 : 12
    verticalPadding: 2

    background: Rectangle {
        implicitHeight: root.small ? 22 : 26
        radius: root.small ? 5 : 6
        color: !root.enabled ? Theme.colors.quaternaryFill
                             : root.down ? Theme.colors.accentPressed
                                         : root.hovered ? Theme.colors.accentHovered : Theme.colors.accent

        FocusRing {
            target: root
        }
    }
}
