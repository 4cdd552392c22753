// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// The ring around the control that the keyboard is on; a control that was clicked has none.
Rectangle {
    id: root

    required property T.Control target
    property real gap: 1

    anchors.fill: parent
    anchors.margins: -gap - border.width
    visible: target.visualFocus

    color: "transparent"
    radius: 6 + gap
    border.width: 2
    border.color: Theme.colors.focusRing
}
