// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

Item {
    id: root

    width: 420
    height: 260

    QtObject {
        objectName: "ready"
        readonly property bool value: picker.popup.opened && menu.opened && elided.toolTipShown
    }

    Component.onCompleted: opening.start()

    Timer {
        id: opening
        interval: 1
        onTriggered: {
            picker.popup.open()
            menu.popup(row, 230, 20)
        }
    }

    PopUpPicker {
        id: picker
        x: 20
        y: 20
        width: 190
        model: ["Icon only", "Icon + Project", "Icon + Project + Account"]
        currentIndex: 1
    }

    RowButton {
        id: row
        y: 140
        width: parent.width
        text: "web-production"
        contentItem: StyledText { text: "web-production" }

        ContextMenu {
            id: menu
            MenuEntry { text: "Pin"; symbolName: "star" }
            MenuEntry { text: "Unpin" }
            MenuEntry { text: "Disabled"; enabled: false }
        }
    }

    ElidedText {
        id: elided
        x: 20
        y: 200
        width: 120
        text: "projects/very-long-identifier-in-europe/serviceAccounts/deploy@very-long-identifier.example"
        revealed: true
    }
}
