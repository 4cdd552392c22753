// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// A symbol that turns into another when its name changes: the old one shrinks and fades, the new
// one grows in its place. Properties as Symbol's.
Item {
    id: root

    property string name: ""
    property real size: Typography.callout.pixelSize
    property color color: Theme.colors.primary
    property string previousName: ""
    property string shownName: ""

    implicitWidth: current.side
    implicitHeight: current.side

    onNameChanged: {
        const isSeen = shownName !== "" && visible && name !== ""
        previousName = shownName
        shownName = name
        if (isSeen) {
            motion.active = true
            motion.item.restart()
        }
    }

    Symbol {
        id: current

        objectName: "current"
        anchors.centerIn: parent
        name: root.name
        size: root.size
        color: root.color
    }

    // Most symbols never change.
    Loader {
        id: motion

        anchors.fill: parent
        active: false

        sourceComponent: Item {
            Symbol {
                id: previous

                objectName: "previous"
                anchors.centerIn: parent
                opacity: 0
                visible: opacity > 0
                name: root.previousName
                size: root.size
                color: root.color
            }

            ParallelAnimation {
                id: replacement

                objectName: "replacing"
                NumberAnimation { target: previous; property: "opacity"; from: 1; to: 0; duration: 120 }
                NumberAnimation { target: previous; property: "scale"; from: 1; to: 0.5; duration: 120 }
                NumberAnimation { target: current; property: "opacity"; from: 0; to: 1; duration: 200 }
                NumberAnimation { target: current; property: "scale"; from: 0.5; to: 1; duration: 200; easing.type: Easing.OutBack }
            }

            function restart() {
                replacement.restart()
            }
        }
    }
}
