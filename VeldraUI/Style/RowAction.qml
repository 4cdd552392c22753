// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// A button in an ActionRow, its `row`. Only the current row's are stops of the Tab key, and a click
// leaves the keyboard where it is.
BorderedButton {
    id: root

    required property ActionRow row

    small: true
    focusPolicy: row.isCurrent || activeFocus ? Qt.TabFocus : Qt.NoFocus

    Accessible.description: row.text
}
