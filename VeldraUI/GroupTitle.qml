// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// The title over a group of rows. Most rows have no `text` over them: theirs is never made.
Loader {
    id: root

    property string text: ""

    active: text !== ""

    sourceComponent: StyledText {
        leftPadding: 8
        topPadding: 2
        text: root.text
        textStyle: Typography.caption
        color: Theme.colors.tertiary
    }
}
