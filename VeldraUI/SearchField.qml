// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// A field to filter by: `text` (may be bound; typing and the clear button change it without
// breaking the binding), `placeholder`. edited(newText): the user changed it.
Rectangle {
    id: root

    property alias text: field.text
    property string placeholder: ""
    readonly property alias field: field

    signal edited(string newText)

    implicitWidth: 200
    implicitHeight: row.height + 12
    radius: 6
    color: Theme.colors.quaternaryFill

    FocusRing {
        objectName: "focusRing"
        shown: field.focusedByKeyboard
        gap: 0
        radius: 8
    }

    Item {
        id: row

        x: 6
        y: 6
        width: root.width - 12
        height: Math.max(symbol.height, field.height)

        Symbol {
            id: symbol

            objectName: "symbol"
            anchors.verticalCenter: parent.verticalCenter
            name: "magnifyingglass"
            color: Theme.colors.secondary
        }

        RoundedField {
            id: field

            objectName: "field"
            anchors.verticalCenter: parent.verticalCenter
            x: symbol.width + 6
            width: (clearButton.visible ? clearButton.x - 6 : row.width) - x
            framed: false
            placeholderText: root.placeholder

            onTextEdited: root.edited(text)
        }

        Loader {
            id: clearButton

            objectName: "clearButton"
            anchors.verticalCenter: parent.verticalCenter
            x: row.width - width
            active: field.length > 0
            visible: active

            sourceComponent: PlainButton {
                symbolName: "xmark.circle.fill"
                foreground: Theme.colors.secondary
                Accessible.name: qsTr("Clear")

                onClicked: root.clear()
            }
        }
    }

    function clear() {
        // First, for the button goes then, and would take the keyboard with it.
        field.forceActiveFocus()
        field.clear()
        edited("")
    }
}
