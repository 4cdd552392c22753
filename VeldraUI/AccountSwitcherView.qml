// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

import VeldraUI
import VeldraUI.Style

// The credentialed accounts; a click makes one active.
Column {
    id: root

    required property AuthState stateManager
    readonly property RowArea rows: accounts

    spacing: 4

    SectionHeader {
        objectName: "header"
        title: qsTr("Accounts")
        icon: "person.2"
    }

    RowColumn {
        id: accounts

        objectName: "rows"
        width: parent.width
        model: root.stateManager.accounts

        delegate: ListRow {
            id: row

            required property int index
            required property string email
            required property bool isActive
            required property bool isServiceAccount

            objectName: email
            area: accounts
            place: index
            current: isActive
            text: email
            details: (isServiceAccount ? qsTr("service account") : "") + (isServiceAccount && isActive ? ", " : "")
                     + (isActive ? qsTr("active") : "")

            contentItem: RowContent {
                width: row.availableWidth
                symbolName: row.isServiceAccount ? "gearshape.fill" : "person.fill"
                text: row.email
                elide: Text.ElideMiddle
                active: row.isActive
                revealed: row.visualFocus
            }

            onClicked: root.stateManager.switchAccount(email)
        }
    }

    StyledText {
        objectName: "empty"
        x: 8
        visible: accounts.count === 0
        text: qsTr("No authenticated accounts")
        textStyle: Typography.callout
        color: Theme.colors.secondary
    }
}
