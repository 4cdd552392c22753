// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// A menu of MenuEntry items; popup(item, x, y) opens it at a place of that item.
T.Menu {
    id: root

    implicitWidth: Math.max(120, contentWidth + leftPadding + rightPadding)
    implicitHeight: contentHeight + topPadding + bottomPadding

    margins: 4
    padding: 4

    delegate: MenuEntry {}

    contentItem: ListView {
        implicitWidth: contentItem.childrenRect.width
        implicitHeight: contentHeight
        model: root.contentModel
        interactive: false
        clip: true
        currentIndex: root.currentIndex
        keyNavigationEnabled: true
    }

    background: Rectangle {
        Theme.dark: root.parent ? root.parent.Theme.dark : true

        radius: 7
        color: Theme.colors.popupBackground
        border.color: Theme.colors.popupBorder
    }
}
