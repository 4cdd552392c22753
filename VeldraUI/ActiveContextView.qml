// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

// The card at the top of the popover: what is active, and the button that copies an identity token.
Rectangle {
    id: root

    required property AuthState stateManager
    property bool tokenCopied: false
    property bool isCopyingToken: false

    implicitHeight: stack.height + 20
    radius: 8
    color: Theme.colors.material

    Accessible.role: Accessible.Grouping
    Accessible.name: title.text

    Column {
        id: stack

        x: 10
        y: 10
        width: root.width - 20
        spacing: 6

        StyledText {
            id: title

            objectName: "title"
            text: qsTr("Active Context")
            textStyle: Typography.callout
            weight: Font.DemiBold
            color: Theme.colors.secondary
            Accessible.role: Accessible.Heading
        }

        Column {
            objectName: "rows"
            width: parent.width
            spacing: 4

            InformationRow {
                objectName: "project"
                width: parent.width
                symbolName: "folder.fill"
                label: qsTr("Project")
                value: root.stateManager.hasActiveProject ? root.stateManager.activeProjectId : qsTr("None")
            }

            InformationRow {
                objectName: "account"
                width: parent.width
                symbolName: "person.fill"
                label: qsTr("Account")
                value: root.stateManager.hasActiveAccount ? root.stateManager.activeAccountEmail : qsTr("None")
            }

            Loader {
                objectName: "impersonating"
                width: parent.width
                active: root.stateManager.isImpersonating
                visible: active

                sourceComponent: InformationRow {
                    symbolName: "bolt.fill"
                    label: qsTr("Impersonating")
                    value: root.stateManager.impersonatedEmail
                    highlighted: true
                }
            }

            InformationRow {
                objectName: "adc"
                width: parent.width
                symbolName: "key.fill"
                label: qsTr("ADC")
                value: root.stateManager.adc.summary
            }
        }

        Divider {
            objectName: "divider"
        }

        Row {
            objectName: "copyRow"
            height: copyButton.height // also while the indicator shows, which is higher
            spacing: 8

            PlainButton {
                id: copyButton

                objectName: "copyButton"
                anchors.verticalCenter: parent.verticalCenter
                enabled: !root.isCopyingToken && root.stateManager.hasActiveAccount
                text: root.tokenCopied ? qsTr("Copied!") : qsTr("Copy Identity Token")
                symbolName: root.tokenCopied ? "checkmark" : "doc.on.clipboard"
                textStyle: Typography.callout

                onClicked: root.copyToken()
            }

            Loader {
                anchors.verticalCenter: parent.verticalCenter
                active: root.isCopyingToken
                visible: active

                sourceComponent: ProgressIndicator {
                    objectName: "progress"
                    small: true
                }
            }
        }
    }

    function copyToken() {
        isCopyingToken = true
        stateManager.copyIdentityToken(copied => {
            if (copied)
                confirmCopy()
            else
                isCopyingToken = false
        })
    }

    function confirmCopy() {
        tokenCopied = true
        stateManager.afterConfirmation(() => {
            tokenCopied = false
            isCopyingToken = false
        })
    }
}
