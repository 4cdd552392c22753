// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// The title over a group of rows.
Item {
    id: root

    property string text: ""

    implicitHeight: title.height + 2

    StyledText {
        id: title

        x: 8
        y: 2
        text: root.text
        textStyle: Typography.caption
        color: Theme.colors.tertiary
    }
}
