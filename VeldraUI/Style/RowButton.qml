// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// A row of a list that is a button as a whole. Give it a contentItem, and `text` for assistive
// technology. `current` tints it as the one that is active. Signal: clicked().
T.AbstractButton {
    id: root

    property bool current: false

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: 8
    verticalPadding: 4
    spacing: 6

    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    background: Rectangle {
        radius: 4
        border.width: root.visualFocus ? 2 : 0
        border.color: Theme.colors.focusRing
        color: root.current ? Qt.alpha(Theme.colors.accent, 0.08) : "transparent"

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: root.down ? Theme.colors.pressed : Theme.colors.hovered
            visible: root.enabled && (root.down || root.hovered)
        }
    }

    Keys.onReturnPressed: event => pressByKey(event)
    Keys.onEnterPressed: event => pressByKey(event)

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.selected: current
    Accessible.onPressAction: if (enabled) clicked()

    function pressByKey(event: KeyEvent) {
        if (!event.isAutoRepeat)
            clicked()
    }
}
