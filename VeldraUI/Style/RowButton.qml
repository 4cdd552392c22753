// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// A row of a list that is a button as a whole. Give it a contentItem, and `text` for assistive
// technology. `current` tints it as the one that is active. With a `menu`, a secondary click, the
// menu key and Shift+F10 open it. Signals: clicked(), menuRequested() just before the menu opens.
T.AbstractButton {
    id: root

    property bool current: false
    property ContextMenu menu: null

    signal menuRequested()

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: 8
    verticalPadding: 4
    spacing: 6

    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    background: Rectangle {
        radius: 4
        color: root.current ? Qt.alpha(Theme.colors.accent, 0.08) : "transparent"

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: root.down ? Theme.colors.pressed : Theme.colors.hovered
            visible: root.enabled && (root.down || root.hovered)
        }

        FocusRing {
            target: root
            gap: -2
            radius: 4
        }
    }

    Keys.onReturnPressed: event => pressByKey(event)
    Keys.onEnterPressed: event => pressByKey(event)
    Keys.onMenuPressed: openMenu(Qt.point(leftPadding, height))
    Keys.onPressed: event => {
        if (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier) {
            event.accepted = true
            openMenu(Qt.point(leftPadding, height))
        }
    }

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.selected: current
    Accessible.onPressAction: if (enabled) clicked()

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => root.openMenu(eventPoint.position)
    }

    function pressByKey(event: KeyEvent) {
        if (!event.isAutoRepeat)
            clicked()
    }

    function openMenu(position: point) {
        if (!menu)
            return
        menuRequested()
        menu.popup(root, position.x, position.y)
    }
}
