// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

// A page of FormSection items, one below the other, that scrolls when it must.
ScrollArea {
    id: root

    default property alias sections: column.data
    property real inset: 16

    Column {
        id: column

        x: root.inset
        width: root.width - 2 * root.inset
        topPadding: root.inset
        bottomPadding: root.inset
        spacing: 16
    }
}
