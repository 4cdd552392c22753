// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

import VeldraUI
import VeldraUI.Style

// The named gcloud configurations: to activate, to delete and, by a sheet, to create.
Item {
    id: root

    required property AuthState stateManager
    property string newConfigName: ""
    property bool showingCreateSheet: false
    readonly property Sheet createSheet: sheet
    readonly property bool isNameFieldFocused: sheet.isNameFieldFocused

    onShowingCreateSheetChanged: {
        if (showingCreateSheet)
            sheet.open()
        else
            sheet.close()
    }

    ListArea {
        objectName: "list"
        width: root.width
        height: divider.y
        label: qsTr("Configurations")
        model: root.stateManager.configurations

        delegate: ConfigurationRow {
            objectName: name

            onActivate: root.stateManager.activateConfiguration(name)
            onRemove: root.stateManager.deleteConfiguration(name)
        }
    }

    Divider {
        id: divider

        objectName: "divider"
        y: bottomBar.y - height
        width: root.width
    }

    Item {
        id: bottomBar

        objectName: "bottomBar"
        y: root.height - height
        width: root.width
        height: createButton.height + 24

        BorderedButton {
            id: createButton

            objectName: "createButton"
            x: 12
            y: 12
            text: qsTr("Create Configuration")

            onClicked: root.showingCreateSheet = true
        }
    }

    CreateConfigurationSheet {
        id: sheet

        name: root.newConfigName

        onNameEdited: newName => root.newConfigName = newName
        onCreate: root.stateManager.createConfiguration(root.newConfigName, () => root.closeSheet())
        onClosed: root.closeSheet()
    }

    function closeSheet() {
        newConfigName = ""
        showingCreateSheet = false
    }
}
