// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

import VeldraUI
import VeldraUI.Style

// The named gcloud configurations; a click activates one. openManager(): the way to edit them.
Column {
    id: root

    required property AuthState stateManager
    readonly property RowArea rows: configurations

    signal openManager()

    spacing: 4

    SectionHeader {
        objectName: "header"
        title: qsTr("Configurations")
        icon: "slider.horizontal.3"
    }

    RowColumn {
        id: configurations

        objectName: "rows"
        width: parent.width
        model: root.stateManager.configurations

        delegate: ListRow {
            id: row

            required property int index
            required property string name
            required property bool isActive
            required property bool hasProject
            required property string projectId

            objectName: name
            area: configurations
            place: index
            current: isActive
            text: name
            details: (hasProject ? projectId : "") + (hasProject && isActive ? ", " : "")
                     + (isActive ? qsTr("active") : "")

            contentItem: RowContent {
                width: row.availableWidth
                text: row.name
                hasSubtitle: row.hasProject
                subtitle: row.projectId
                active: row.isActive
                revealed: row.visualFocus
            }

            onClicked: root.stateManager.activateConfiguration(name)
        }
    }

    Item {
        width: parent.width
        height: manageButton.height + 2

        BorderedButton {
            id: manageButton

            objectName: "manageButton"
            x: 8
            y: 2
            text: qsTr("Manage Configurations...")
            textStyle: Typography.callout

            onClicked: root.openManager()
        }
    }
}
