// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// Work of unknown length is going on: `running`, `small`. It stands still, and wakes nobody, while
// it or its window is hidden.
Item {
    id: root

    property bool running: true
    property bool small: false
    readonly property bool turning: timer.running

    implicitWidth: small ? 16 : 28
    implicitHeight: implicitWidth

    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTr("In progress")

    Symbol {
        id: symbol

        property int turn: 0

        objectName: "symbol"
        width: root.implicitWidth
        height: root.implicitHeight
        sourceSize.width: width
        sourceSize.height: height
        anchors.centerIn: parent
        visible: root.running
        smooth: true
        name: "progress"
        color: Theme.colors.secondary
        rotation: 45 * turn
    }

    Timer {
        id: timer

        interval: 100
        repeat: true
        running: root.running && root.visible && root.Window.visibility !== Window.Hidden
        onTriggered: symbol.turn = (symbol.turn + 1) % 8
    }
}
