// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// A titled section of a GroupedForm: title; its children are FormRow items.
Column {
    id: root

    default property alias rows: column.data
    property string title: ""

    width: parent ? parent.width : 0
    spacing: 6

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    StyledText {
        leftPadding: 2
        visible: text !== ""
        text: root.title
        textStyle: Typography.headline
        Accessible.ignored: true // the section has its name
    }

    Rectangle {
        width: parent.width
        height: column.height
        radius: 8
        color: Theme.colors.groupBackground
        border.color: Theme.colors.divider

        Column {
            id: column

            width: parent.width
        }
    }
}
