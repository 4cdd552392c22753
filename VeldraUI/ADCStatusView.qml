// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

// The application default credentials in place, and the ways to change them.
Column {
    id: root

    required property AuthState stateManager

    readonly property bool isConfigured: stateManager.adc.isConfigured

    spacing: 4

    SectionHeader {
        objectName: "header"
        title: qsTr("Application Default Credentials")
        icon: "key"
    }

    Item {
        width: parent.width
        height: status.height + 8

        Item {
            id: status

            objectName: "status"
            x: 8
            y: 4
            width: parent.width - 16
            height: Math.max(symbol.height, texts.height, badge.height)

            Item {
                id: symbolFrame

                width: 14
                height: parent.height

                Symbol {
                    id: symbol

                    objectName: "symbol"
                    anchors.centerIn: parent
                    name: root.stateManager.adc.symbol
                    color: root.isConfigured ? Theme.colors.green : Theme.colors.secondary
                }
            }

            Column {
                id: texts

                anchors.verticalCenter: parent.verticalCenter
                x: symbolFrame.width + 6
                width: (root.isConfigured ? badge.x - 12 : parent.width) - x
                spacing: 1

                StyledText {
                    objectName: "description"
                    text: root.stateManager.adc.description
                }

                ElidedText {
                    objectName: "quota"
                    width: parent.width
                    visible: root.stateManager.adc.hasQuotaProject
                    text: qsTr("Quota: %1").arg(root.stateManager.adc.quotaProject)
                    textStyle: Typography.caption
                    color: Theme.colors.secondary
                }
            }

            Loader {
                id: badge

                anchors.verticalCenter: parent.verticalCenter
                x: parent.width - width
                active: root.isConfigured
                visible: active

                sourceComponent: StatusBadge {
                    objectName: "badge"
                    text: qsTr("configured")
                    color: Theme.colors.green
                    icon: "checkmark"
                }
            }
        }
    }

    Row {
        objectName: "buttons"
        leftPadding: 8
        rightPadding: 8
        spacing: 8

        BorderedButton {
            objectName: "loginButton"
            text: qsTr("ADC Login")
            textStyle: Typography.callout
            small: true

            onClicked: root.stateManager.triggerADCLogin()
        }

        BorderedButton {
            objectName: "quotaButton"
            text: qsTr("Set Quota Project")
            textStyle: Typography.callout
            small: true

            onClicked: root.stateManager.setQuotaProjectToActive()
        }
    }
}
