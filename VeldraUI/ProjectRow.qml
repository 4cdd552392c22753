// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// The row of one project: a star when it is pinned, its id, and the mark of the active one. The
// display name is in the tool tip.
RowButton {
    id: root

    property string projectId: ""
    property string name: ""
    property bool isPinned: false
    property bool isActive: false
    property int position: 0
    property int setSize: 0

    readonly property string hint: [idText.truncated ? projectId : "", name === projectId ? "" : name]
        .filter(line => line !== "").join("\n")
    readonly property bool toolTipShown: toolTip.active
    // The project that the row stood for when it was pressed; it may stand for another by now.
    property string pressedId: ""

    signal chosen()

    text: projectId
    current: isActive

    contentItem: Item {
        // Also of a row that is not on screen.
        implicitHeight: Math.max(idText.height, star.height, badge.height)

        Loader {
            id: star

            anchors.verticalCenter: parent.verticalCenter
            active: root.isPinned

            sourceComponent: Symbol {
                objectName: "star"
                name: "star.fill"
                size: Typography.caption.pixelSize
                color: Theme.colors.yellow
            }
        }

        StyledText {
            id: idText

            objectName: "text"
            anchors.verticalCenter: parent.verticalCenter
            x: root.isPinned ? star.width + 6 : 0
            width: Math.min(implicitWidth, (root.isActive ? badge.x - 12 : parent.width) - x)
            text: root.projectId
            elide: Text.ElideRight
            maximumLineCount: 1
            wrapMode: Text.NoWrap
            Accessible.ignored: true
        }

        ActiveBadge {
            id: badge

            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - width
            active: root.isActive
        }
    }

    onPressed: pressedId = projectId
    onCanceled: pressedId = ""
    onClicked: {
        const isSame = pressedId === "" || pressedId === projectId
        pressedId = ""
        if (isSame)
            chosen()
    }

    Accessible.description: [name === projectId ? "" : name, isPinned ? qsTr("pinned") : "",
                             isActive ? qsTr("active") : "", qsTr("%1 of %2").arg(position).arg(setSize)]
        .filter(detail => detail !== "").join(", ")
    Accessible.focusable: true

    Loader {
        id: toolTip

        active: (root.hovered || root.visualFocus) && root.hint !== "" && !(root.menu && root.menu.visible)

        sourceComponent: ToolTip {
            objectName: "toolTip"
            parent: root
            text: root.hint
            visible: true
        }
    }
}
