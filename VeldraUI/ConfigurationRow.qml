// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// One configuration with its main properties, each only where it is set, and the buttons that one
// which is not active has: activate(), remove().
ActionRow {
    id: root

    required property string name
    required property bool isActive
    required property bool hasProject
    required property string projectId
    required property bool hasAccount
    required property string account
    required property bool hasRegion
    required property string region

    signal activate()
    signal remove()

    text: name
    details: [hasProject ? projectLine.text : "", hasAccount ? accountLine.text : "",
              hasRegion ? regionLine.text : "", isActive ? qsTr("active") : ""]
        .filter(detail => detail !== "").join(", ")

    contentItem: Item {
        implicitHeight: Math.max(texts.height, root.isActive ? 0 : buttons.height)

        Column {
            id: texts

            objectName: "texts"
            anchors.verticalCenter: parent.verticalCenter
            width: (root.isActive ? parent.width : buttons.x - 12)
            spacing: 2

            Item {
                width: parent.width
                height: Math.max(nameText.height, badge.height)

                ElidedText {
                    id: nameText

                    objectName: "name"
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.min(implicitWidth, parent.width - (root.isActive ? badge.width + 6 : 0))
                    text: root.name
                    weight: Font.Medium
                    revealed: root.visualFocus
                    Accessible.ignored: true
                }

                ActiveBadge {
                    id: badge

                    anchors.verticalCenter: parent.verticalCenter
                    x: nameText.width + 6
                    active: root.isActive
                }
            }

            PropertyLine {
                id: projectLine

                objectName: "project"
                width: parent.width
                visible: root.hasProject
                text: qsTr("Project: %1").arg(root.projectId)
                revealed: root.visualFocus
            }

            PropertyLine {
                id: accountLine

                objectName: "account"
                width: parent.width
                visible: root.hasAccount
                text: qsTr("Account: %1").arg(root.account)
                revealed: root.visualFocus
            }

            PropertyLine {
                id: regionLine

                objectName: "region"
                width: parent.width
                visible: root.hasRegion
                text: qsTr("Region: %1").arg(root.region)
                revealed: root.visualFocus
            }
        }

        Row {
            id: buttons

            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - width
            visible: !root.isActive
            spacing: 8

            RowAction {
                objectName: "activateButton"
                row: root
                text: qsTr("Activate")

                onClicked: root.activate()
            }

            RowAction {
                objectName: "deleteButton"
                row: root
                destructive: true
                symbolName: "trash"
                help: qsTr("Delete")

                onClicked: root.remove()
            }
        }
    }

    component PropertyLine: ElidedText {
        elide: Text.ElideMiddle
        textStyle: Typography.caption
        color: Theme.colors.secondary
        Accessible.ignored: true
    }
}
