// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// A link: text; clicked(). What it opens is its user's affair.
ButtonBase {
    id: root

    padding: 0
    foreground: Theme.colors.link

    background: Item {
        Rectangle {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            height: 1
            color: Theme.colors.link
            visible: root.hovered
        }

        FocusRing {
            target: root
        }
    }

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }

    Accessible.role: Accessible.Link
}
