// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// The row of one project: a star when it is pinned, its id, and the mark of the active one. The
// display name is in the tool tip, unless its menu is shown. A secondary click, the menu key and
// Shift+F10 ask for the menu: menuRequested(position).
RowButton {
    id: root

    property string projectId: ""
    property string name: ""
    property bool isPinned: false
    property bool isActive: false
    property int position: 0
    property int setSize: 0

    property bool isMenuShown: false
    readonly property bool toolTipShown: toolTip.active
    // The project that the row stood for when it was pressed; it may stand for another by now.
    property string pressedId: ""

    signal chosen()
    signal menuRequested(point position)

    text: projectId
    current: isActive

    contentItem: Item {
        width: root.availableWidth // at once, or the text would be laid out for no width first
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

    Keys.onMenuPressed: requestMenu()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier) {
            event.accepted = true
            requestMenu()
        }
    }

    Accessible.description: (name === projectId ? "" : name + ", ") + (isPinned ? qsTr("pinned") + ", " : "")
                            + (isActive ? qsTr("active") + ", " : "")
                            + qsTr("%1 of %2").arg(position).arg(setSize)
    Accessible.focusable: true

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => root.menuRequested(eventPoint.position)
    }

    HelpTip {
        id: toolTip

        objectName: "toolTip"
        help: shown ? root.hint() : ""
        shown: (root.hovered || root.visualFocus) && !root.isMenuShown
    }

    function hint(): string {
        const lines = [idText.truncated ? projectId : "", name === projectId ? "" : name]
        return lines.filter(line => line !== "").join("\n")
    }

    function requestMenu() {
        menuRequested(Qt.point(leftPadding, height))
    }
}
