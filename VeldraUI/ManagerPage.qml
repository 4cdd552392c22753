// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// What stands below the tabs while the one at `place` is chosen: sourceComponent, made when it first is.
Loader {
    id: root

    required property TabBar tabs
    required property int place

    readonly property bool isChosen: tabs.currentIndex === place
    property bool hasAppeared: false

    y: tabs.height
    width: parent.width
    height: parent.height - y
    visible: isChosen
    active: hasAppeared

    onIsChosenChanged: appear()

    Component.onCompleted: appear()

    function appear() {
        if (isChosen)
            hasAppeared = true
    }

    // Puts the keyboard where it was in this page, on its first control at first.
    function takeKeyboard() {
        forceActiveFocus(Qt.TabFocusReason)
        if (Window.activeFocusItem === root)
            nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)
    }
}
