// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// One service account: impersonate(), and remove() where it is saved or save() where it is not.
ActionRow {
    id: root

    required property string email
    required property string displayName
    required property bool isSaved

    signal impersonate()
    signal save()
    signal remove()

    text: email
    details: (displayName === "" ? "" : displayName + ", ") + (isSaved ? qsTr("saved") : qsTr("discovered"))

    contentItem: Item {
        implicitHeight: Math.max(texts.height, buttons.height)

        Column {
            id: texts

            objectName: "texts"
            anchors.verticalCenter: parent.verticalCenter
            width: buttons.x - 12
            spacing: 1

            ElidedText {
                objectName: "email"
                width: Math.min(implicitWidth, parent.width)
                elide: Text.ElideMiddle
                text: root.email
                weight: Font.Medium
                revealed: root.visualFocus
                Accessible.ignored: true
            }

            ElidedText {
                objectName: "displayName"
                width: Math.min(implicitWidth, parent.width)
                visible: root.displayName !== ""
                text: root.displayName
                textStyle: Typography.caption
                color: Theme.colors.secondary
                revealed: root.visualFocus
                Accessible.ignored: true
            }
        }

        Row {
            id: buttons

            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - width
            spacing: 8

            RowAction {
                objectName: "impersonateButton"
                row: root
                text: qsTr("Impersonate")

                onClicked: root.impersonate()
            }

            RowAction {
                objectName: "removeButton"
                visible: root.isSaved
                row: root
                destructive: true
                symbolName: "trash"
                help: qsTr("Remove")

                onClicked: root.remove()
            }

            RowAction {
                objectName: "saveButton"
                visible: !root.isSaved
                row: root
                symbolName: "star"
                help: qsTr("Save for quick access")

                onClicked: root.save()
            }
        }
    }
}
