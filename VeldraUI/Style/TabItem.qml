// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// One tab of a TabBar: text, symbolName.
T.TabButton {
    id: root

    property string symbolName: ""

    implicitWidth: Math.max(72, implicitContentWidth + leftPadding + rightPadding)
    width: implicitWidth
    implicitHeight: 44
    horizontalPadding: 8
    verticalPadding: 4

    // One stop of the Tab key for the whole bar: the chosen tab.
    focusPolicy: checked || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    hoverEnabled: true

    contentItem: TabLabel {
        opacity: root.enabled ? 1 : 0.4
        symbolName: root.symbolName
        text: root.text
        chosen: root.checked
    }

    background: Rectangle {
        radius: 6
        color: root.checked || root.down ? Theme.colors.pressed
                                         : root.hovered ? Theme.colors.hovered : "transparent"

        FocusRing {
            target: root
            gap: -2
        }
    }

    Keys.onLeftPressed: choose(T.TabBar.index - 1)
    Keys.onRightPressed: choose(T.TabBar.index + 1)

    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.selected: checked
    Accessible.onPressAction: if (enabled) checked = true

    function choose(index: int) {
        const bar = T.TabBar.tabBar
        if (!bar || index < 0 || index >= bar.count)
            return
        // Before it is chosen: the bar would give it the focus without a mark.
        bar.itemAt(index).forceActiveFocus(Qt.TabFocusReason)
        bar.setCurrentIndex(index)
    }
}
