// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

// The projects in their groups, with a filter where there are many. A click switches to one; the
// menu of a row pins it. What is on screen is given in the view's own coordinates.
Column {
    id: root

    required property AuthState stateManager
    property string searchText: ""
    property real viewportY: 0
    property real viewportHeight: 750

    readonly property RowArea rows: projectRows
    readonly property bool isFilterOffered: projects.isFilterOffered

    spacing: 4

    ProjectListModel {
        id: projects

        stateManager: root.stateManager
        filterText: root.searchText
    }

    SectionHeader {
        objectName: "header"
        title: qsTr("Projects")
        icon: "folder"
    }

    SearchField {
        id: filter

        objectName: "filter"
        x: 4
        width: parent.width - 8
        visible: root.isFilterOffered
        text: root.searchText
        placeholder: qsTr("Filter projects...")

        onEdited: newText => root.searchText = newText
    }

    ProjectRows {
        id: projectRows

        objectName: "rows"
        width: parent.width
        projects: projects
        viewportY: root.viewportY - y
        viewportHeight: root.viewportHeight

        onChosen: projectId => root.stateManager.switchProject(projectId)
        onPinToggled: projectId => root.stateManager.togglePin(projectId)
    }

    StyledText {
        objectName: "empty"
        x: 8
        visible: projects.hasNoProjects
        text: qsTr("No projects found")
        textStyle: Typography.callout
        color: Theme.colors.secondary
    }

    // Sets the filter to `text`, with the caret at its end. Whether there is a filter at all.
    function filterBy(text: string): bool {
        if (!focusFilter())
            return false
        searchText = text
        filter.field.cursorPosition = text.length
        return true
    }

    function closeMenu() {
        if (projectRows.menu)
            projectRows.menu.close()
    }

    function focusFilter(): bool {
        if (isFilterOffered)
            filter.field.forceActiveFocus(Qt.TabFocusReason)
        return isFilterOffered
    }
}
