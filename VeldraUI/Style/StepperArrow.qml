// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// Half of a Stepper's button.
Item {
    id: root

    required property string symbolName
    required property bool pressed
    required property bool hovered

    implicitWidth: 20
    implicitHeight: 12

    Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        radius: 4
        visible: root.enabled && (root.pressed || root.hovered)
        color: root.pressed ? Theme.colors.pressed : Theme.colors.hovered
    }

    Symbol {
        anchors.centerIn: parent
        opacity: root.enabled ? 1 : 0.35
        name: root.symbolName
        size: 7
    }
}
