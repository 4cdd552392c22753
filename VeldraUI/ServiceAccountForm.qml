// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// Adds a service account by hand: `email` and `displayName` (may be bound), and whether it `canAdd`
// them. emailEdited(newEmail), displayNameEdited(newName), add().
Item {
    id: root

    required property string email
    required property string displayName
    required property bool canAdd

    readonly property real inset: 12

    signal emailEdited(string newEmail)
    signal displayNameEdited(string newName)
    signal add()

    implicitHeight: addButton.height + 2 * inset

    RoundedField {
        id: emailField

        objectName: "emailField"
        anchors.verticalCenter: parent.verticalCenter
        x: root.inset
        width: labelField.x - 8 - x
        placeholderText: qsTr("Service account email")
        text: root.email

        onTextEdited: root.emailEdited(text)
        onAccepted: if (root.canAdd) root.add()
    }

    RoundedField {
        id: labelField

        objectName: "labelField"
        anchors.verticalCenter: parent.verticalCenter
        x: addButton.x - 8 - width
        width: 150
        placeholderText: qsTr("Label (optional)")
        text: root.displayName

        onTextEdited: root.displayNameEdited(text)
        onAccepted: if (root.canAdd) root.add()
    }

    BorderedButton {
        id: addButton

        objectName: "addButton"
        anchors.verticalCenter: parent.verticalCenter
        x: parent.width - root.inset - width
        enabled: root.canAdd
        text: qsTr("Add")

        onClicked: root.add()
    }

    function takeKeyboard() {
        emailField.forceActiveFocus(Qt.TabFocusReason)
    }
}
