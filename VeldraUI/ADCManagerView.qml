// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

// The application default credentials as they are, and the ways to change them.
ScrollArea {
    id: root

    required property AuthState stateManager
    property string quotaProjectInput: ""

    Column {
        objectName: "stack"
        width: root.width
        padding: 16
        spacing: 16

        GroupBox {
            objectName: "status"
            width: parent.width - 32
            title: qsTr("Current ADC Status")

            Column {
                width: parent.width
                spacing: 6

                LabelledValue {
                    objectName: "type"
                    width: parent.width
                    label: qsTr("Type:")
                    value: root.stateManager.adc.typeName
                }

                LabelledValue {
                    objectName: "valid"
                    width: parent.width
                    label: qsTr("Valid:")
                    value: root.stateManager.adc.isValid ? qsTr("Yes") : qsTr("No")
                }

                LabelledValue {
                    objectName: "clientEmail"
                    width: parent.width
                    visible: root.stateManager.adc.hasClientEmail
                    label: qsTr("Client Email:")
                    value: root.stateManager.adc.clientEmail
                }

                LabelledValue {
                    objectName: "quotaProject"
                    width: parent.width
                    visible: root.stateManager.adc.hasQuotaProject
                    label: qsTr("Quota Project:")
                    value: root.stateManager.adc.quotaProject
                }
            }
        }

        GroupBox {
            objectName: "actions"
            width: parent.width - 32
            title: qsTr("Actions")

            Column {
                width: parent.width
                spacing: 12

                ProminentButton {
                    objectName: "loginButton"
                    text: qsTr("Run ADC Login (opens browser)")

                    onClicked: root.stateManager.triggerADCLogin()
                }

                BorderedButton {
                    objectName: "useActiveButton"
                    visible: root.stateManager.hasActiveProject
                    text: qsTr("Use Active Project as Quota Project")

                    onClicked: root.stateManager.setQuotaProjectToActive()
                }

                Item {
                    objectName: "quotaRow"
                    width: parent.width
                    height: setButton.height

                    RoundedField {
                        objectName: "quotaField"
                        anchors.verticalCenter: parent.verticalCenter
                        width: Math.min(320, setButton.x - 8)
                        placeholderText: qsTr("Quota project ID")
                        text: root.quotaProjectInput

                        onTextEdited: root.quotaProjectInput = text
                        onAccepted: root.setQuotaProject()
                    }

                    BorderedButton {
                        id: setButton

                        objectName: "setButton"
                        x: Math.min(320 + 8, parent.width - width)
                        text: qsTr("Set Quota Project")

                        onClicked: root.setQuotaProject()
                    }
                }
            }
        }
    }

    function setQuotaProject() {
        stateManager.setQuotaProject(quotaProjectInput)
    }
}
