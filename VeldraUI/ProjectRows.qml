// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

import VeldraUI
import VeldraUI.Style

// The rows of `projects`, with the titles of their groups. Only what is inside the viewport, given
// in the coordinates of the rows, has items. chosen(projectId), pinToggled(projectId).
RowArea {
    id: root

    required property ProjectListModel projects
    property real viewportY: 0
    property real viewportHeight: 0

    // Made when it is first asked for.
    readonly property var menu: menuLoader.item
    readonly property bool isMenuShown: menu !== null && menu.visible

    signal chosen(string projectId)
    signal pinToggled(string projectId)

    implicitHeight: visibleRows.height
    count: projects.count
    currentRow: 0

    onCurrentRowChanged: visibleRows.currentRow = currentRow

    VisibleProjects {
        id: visibleRows

        source: root.projects
        rowHeight: plainRow.implicitHeight
        activeRowHeight: activeRow.implicitHeight
        titleHeight: titleRow.height
        spacing: 4
        viewportY: root.viewportY
        viewportHeight: root.viewportHeight

        onCurrentRowChanged: root.currentRow = Math.max(0, currentRow)
    }

    Repeater {
        id: repeater

        objectName: "repeater"
        model: visibleRows

        Item {
            id: item

            required property string projectId
            required property string name
            required property bool isPinned
            required property bool isActive
            required property string groupTitle
            required property int position
            required property int setSize
            required property int row
            required property real rowY

            readonly property bool isCurrent: row === root.currentRow

            y: rowY
            width: root.width
            height: button.y + button.height

            onIsCurrentChanged: if (isCurrent) root.adopt(button)

            Component.onCompleted: if (isCurrent) root.adopt(button)

            GroupTitle {
                objectName: "groupTitle"
                visible: active
                text: item.groupTitle
            }

            ProjectRow {
                id: button

                objectName: item.projectId
                y: item.groupTitle === "" ? 0 : titleRow.height + visibleRows.spacing
                width: item.width
                height: item.isActive ? visibleRows.activeRowHeight : visibleRows.rowHeight
                focusPolicy: Qt.ClickFocus
                isMenuShown: root.isMenuShown
                projectId: item.projectId
                name: item.name
                isPinned: item.isPinned
                isActive: item.isActive
                position: item.position
                setSize: item.setSize

                onActiveFocusChanged: if (activeFocus) root.enter(button, item.row)
                onChosen: root.chosen(projectId)
                onMenuRequested: position => root.openMenu(button, position)
            }
        }
    }

    Loader {
        id: menuLoader
    }

    // Never shown: their heights are those of all others.
    ProjectRow {
        id: plainRow

        visible: false
        Accessible.ignored: true
    }

    ProjectRow {
        id: activeRow

        visible: false
        isActive: true
        Accessible.ignored: true
    }

    GroupTitle {
        id: titleRow

        visible: false
        text: "-"
        Accessible.ignored: true
    }

    function openMenu(row: ProjectRow, position: point) {
        if (!menu)
            menuLoader.setSource("ProjectMenu.qml", { rows: root })
        menu.openFor(row, position)
    }
}
