// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

import VeldraUI
import VeldraUI.Style

// Which service accounts are impersonated, and the ways to begin and end it.
Column {
    id: root

    required property AuthState stateManager
    property string newSAEmail: ""
    property int selectedMode: AuthState.ADCOnly

    readonly property RowArea rows: savedRows
    readonly property bool isAnyActive: stateManager.isImpersonating || stateManager.adc.isImpersonating

    spacing: 4

    SectionHeader {
        objectName: "header"
        title: qsTr("Service Account Impersonation")
        icon: "bolt"
    }

    StyledText {
        objectName: "empty"
        x: 8
        visible: !root.isAnyActive
        text: qsTr("No active impersonation")
        textStyle: Typography.callout
        color: Theme.colors.secondary
    }

    ActiveImpersonations {
        objectName: "active"
        width: parent.width
        visible: root.isAnyActive
        stateManager: root.stateManager
    }

    Item {
        width: parent.width
        height: picker.height + 2

        SegmentedPicker {
            id: picker

            objectName: "modePicker"
            x: 8
            y: 2
            width: parent.width - 16
            label: qsTr("Mode")
            model: root.stateManager.modeTexts
            currentIndex: root.selectedMode
            small: true

            onActivated: index => root.selectedMode = index
        }
    }

    Item {
        width: parent.width
        height: savedTitle.height + 2
        visible: savedAccounts.count > 0

        StyledText {
            id: savedTitle

            objectName: "savedTitle"
            x: 8
            y: 2
            text: qsTr("Quick Impersonate")
            textStyle: Typography.caption
            color: Theme.colors.tertiary
        }
    }

    RowColumn {
        id: savedRows

        objectName: "rows"
        width: parent.width

        model: SavedAccountListModel {
            id: savedAccounts

            stateManager: root.stateManager
            projectId: root.stateManager.activeProjectId
        }

        delegate: ListRow {
            id: row

            required property int index
            required property string email
            required property string title

            objectName: email
            area: savedRows
            place: index
            verticalPadding: 3
            text: title
            details: title === email ? "" : email

            contentItem: RowContent {
                width: row.availableWidth
                text: row.title
                elide: Text.ElideMiddle
                revealed: row.visualFocus
            }

            onClicked: root.stateManager.setImpersonation(email, root.selectedMode)
        }
    }

    Item {
        width: parent.width
        height: Math.max(emailField.height, goButton.height) + 4

        RoundedField {
            id: emailField

            objectName: "emailField"
            x: 8
            y: 4 + (parent.height - 4 - height) / 2
            width: goButton.x - 4 - x
            placeholderText: qsTr("SA email")
            textStyle: Typography.callout
            text: root.newSAEmail

            onTextEdited: root.newSAEmail = text
            onAccepted: root.submit()
        }

        BorderedButton {
            id: goButton

            objectName: "goButton"
            x: parent.width - 8 - width
            y: 4 + (parent.height - 4 - height) / 2
            enabled: root.newSAEmail !== ""
            text: qsTr("Go")
            textStyle: Typography.callout
            small: true

            onClicked: root.submit()
        }
    }

    function submit() {
        stateManager.submitImpersonation(newSAEmail, selectedMode, () => newSAEmail = "")
    }
}
