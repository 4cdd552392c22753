// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// The ring around the control that the keyboard is on, its `target`, or while it is `shown`; a
// control that was clicked has none.
Rectangle {
    id: root

    property T.Control target: null
    property bool shown: target !== null && target.visualFocus
    property real gap: 1

    anchors.fill: parent
    anchors.margins: -gap - border.width
    visible: shown

    color: "transparent"
    radius: 6 + gap
    border.width: 2
    border.color: Theme.colors.focusRing
}
