// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

// The service accounts of one project, saved or discovered: to impersonate, to save, to remove and
// to add by hand.
Item {
    id: root

    required property AuthState stateManager
    property string newEmail: ""
    property string newDisplayName: ""
    property string selectedProjectId: ""
    property int selectedMode: AuthState.ADCOnly
    readonly property bool isLoadingAccounts: accounts.isLoading
    readonly property bool discoveryFailed: accounts.discoveryFailed

    readonly property bool hasProject: selectedProjectId !== ""
    readonly property bool hasAccounts: accounts.savedCount + accounts.discoveredCount > 0

    onSelectedProjectIdChanged: if (selectedProjectId !== "") accounts.discover(selectedProjectId)
    onHasAccountsChanged: if (!hasAccounts && list.activeFocus) addForm.takeKeyboard()

    Component.onCompleted: if (selectedProjectId === "") selectedProjectId = stateManager.activeProjectId

    ServiceAccountListModel {
        id: accounts

        stateManager: root.stateManager
        projectId: root.selectedProjectId
    }

    ServiceAccountBar {
        id: topBar

        objectName: "topBar"
        width: root.width
        stateManager: root.stateManager
        selectedProjectId: root.selectedProjectId
        selectedMode: root.selectedMode

        onProjectChosen: id => root.selectedProjectId = id
        onModeChosen: mode => root.selectedMode = mode
    }

    Divider {
        objectName: "topDivider"
        y: topBar.height
        width: root.width
    }

    Item {
        id: content

        objectName: "content"
        y: topBar.height + 1
        width: root.width
        height: bottomDivider.y - y

        EmptyState {
            objectName: "noProject"
            anchors.centerIn: parent
            width: parent.width - 48
            visible: !root.hasProject
            symbolName: "folder"
            title: qsTr("Select a Project")
            description: qsTr("Choose a project to manage its service accounts")
        }

        Column {
            objectName: "loading"
            anchors.centerIn: parent
            visible: root.hasProject && root.isLoadingAccounts
            spacing: 8

            ProgressIndicator {
                objectName: "progress"
                anchors.horizontalCenter: parent.horizontalCenter
            }

            StyledText {
                objectName: "loadingText"
                anchors.horizontalCenter: parent.horizontalCenter
                text: qsTr("Loading service accounts...")
                textStyle: Typography.callout
                color: Theme.colors.secondary
            }
        }

        EmptyState {
            objectName: "noAccounts"
            anchors.centerIn: parent
            width: parent.width - 48
            visible: root.hasProject && !root.isLoadingAccounts && !root.hasAccounts
            symbolName: "person.badge.key"
            title: qsTr("No Service Accounts Found")
            description: root.discoveryFailed
                         ? qsTr("Could not list service accounts (missing IAM permissions?). Add one manually below.")
                         : qsTr("No service accounts found for this project. Add one manually below.")
        }

        ListArea {
            id: list

            objectName: "list"
            anchors.fill: parent
            visible: root.hasProject && !root.isLoadingAccounts && root.hasAccounts
            label: qsTr("Service Accounts")
            model: accounts

            // A section without accounts has its title all the same.
            header: ListHeading {
                text: qsTr("Saved")
                shown: accounts.savedCount === 0
            }

            footer: ListHeading {
                text: qsTr("Discovered from GCP")
                shown: accounts.discoveredCount === 0
            }

            section.property: "isSaved"
            section.delegate: ListHeading {
                required property string section

                text: section === "true" ? qsTr("Saved") : qsTr("Discovered from GCP")
                told: false
            }

            delegate: ServiceAccountRow {
                objectName: email

                onImpersonate: root.stateManager.setImpersonation(email, root.selectedMode)
                onSave: accounts.save(email)
                onRemove: accounts.remove(email)
            }
        }
    }

    Divider {
        id: bottomDivider

        objectName: "bottomDivider"
        y: addForm.y - height
        width: root.width
    }

    ServiceAccountForm {
        id: addForm

        objectName: "addForm"
        y: root.height - height
        width: root.width
        email: root.newEmail
        displayName: root.newDisplayName
        canAdd: root.newEmail !== "" && root.hasProject

        onEmailEdited: newEmail => root.newEmail = newEmail
        onDisplayNameEdited: newName => root.newDisplayName = newName
        onAdd: root.add()
    }

    function add() {
        accounts.add(newEmail, newDisplayName)
        newEmail = ""
        newDisplayName = ""
    }
}
