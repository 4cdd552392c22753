// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

// The pages of a window, each with symbol and text: fill it with TabItem items. currentIndex; Left and
// Right move between them.
T.TabBar {
    id: root

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    spacing: 2
    padding: 6
    // In the middle of the window.
    leftPadding: Math.max(padding, Math.round((width - contentWidth) / 2))

    contentItem: ListView {
        implicitWidth: contentWidth
        implicitHeight: 44
        model: root.contentModel
        currentIndex: root.currentIndex
        spacing: root.spacing
        orientation: ListView.Horizontal
        boundsBehavior: Flickable.StopAtBounds
        interactive: false
    }

    background: Item {
        Divider {
            width: parent.width
            anchors.bottom: parent.bottom
        }
    }

    Accessible.role: Accessible.PageTabList
}
