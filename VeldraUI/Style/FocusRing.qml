// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// The ring around the control that the keyboard is on, its `target`, or while it is `shown`; a
// control that was clicked has none. Most never show theirs: it is made when it is needed.
Loader {
    id: root

    property T.Control target: null
    property bool shown: target !== null && target.visualFocus
    property real gap: 1
    property real radius: 6 + gap

    anchors.fill: parent
    anchors.margins: -gap - 2
    active: shown
    visible: shown

    sourceComponent: Rectangle {
        color: "transparent"
        radius: root.radius
        border.width: 2
        border.color: Theme.colors.focusRing
    }
}
