// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// Asks for the name of a new configuration: `name` (may be bound). nameEdited(newName), create();
// closed() also when it was cancelled.
Sheet {
    id: root

    property string name: ""
    readonly property bool isNameFieldFocused: nameField.activeFocus

    signal nameEdited(string newName)
    signal create()

    title: qsTr("New Configuration")

    Column {
        objectName: "stack"
        width: 260
        spacing: 16

        StyledText {
            objectName: "title"
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.title
            textStyle: Typography.headline
            Accessible.role: Accessible.Heading
        }

        RoundedField {
            id: nameField

            objectName: "nameField"
            width: parent.width
            focus: true
            placeholderText: qsTr("Configuration name")
            text: root.name

            onTextEdited: root.nameEdited(text)
            onAccepted: if (createButton.enabled) root.create()
        }

        Row {
            objectName: "buttons"
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8

            BorderedButton {
                objectName: "cancelButton"
                text: qsTr("Cancel")

                onClicked: root.close()
            }

            ProminentButton {
                id: createButton

                objectName: "createButton"
                enabled: root.name !== ""
                text: qsTr("Create")

                onClicked: root.create()
            }
        }
    }

    onOpened: nameField.forceActiveFocus(Qt.PopupFocusReason)
}
