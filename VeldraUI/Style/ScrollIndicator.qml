// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// Where one is in something longer than its frame, and the handle to move in it. It is always shown
// when there is something to scroll, and nothing in it moves by itself.
T.ScrollBar {
    id: root

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 2
    minimumSize: 0.08
    visible: size < 1
    policy: T.ScrollBar.AsNeeded
    hoverEnabled: true

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        opacity: root.pressed ? 1 : root.hovered ? 0.85 : 0.6
        color: Theme.colors.scrollIndicator
    }

    Accessible.role: Accessible.ScrollBar
    Accessible.name: qsTr("Scroll")
}
