// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// What stands in a row: a symbol in a frame of its own where there is one, a text, a second one
// below it where there is one, and at the end the mark of what is active.
Item {
    id: root

    property string symbolName: ""
    property string text: ""
    property string subtitle: ""
    property bool hasSubtitle: false
    property int elide: Text.ElideRight
    property bool active: false
    // The keyboard is on the row: what is shortened is shown in full.
    property bool revealed: false

    readonly property bool hasSymbol: symbolName !== ""
    readonly property real symbolFrame: 14

    implicitHeight: Math.max(symbol.height, texts.height, badge.height)

    // As the subtitle and the mark: in most rows there is none.
    Loader {
        id: symbol

        anchors.verticalCenter: parent.verticalCenter
        x: (symbolFrame - width) / 2
        active: root.hasSymbol

        sourceComponent: Symbol {
            objectName: "symbol"
            name: root.symbolName
            color: Theme.colors.secondary
        }
    }

    Column {
        id: texts

        anchors.verticalCenter: parent.verticalCenter
        x: root.hasSymbol ? symbolFrame + 6 : 0
        width: (root.active ? badge.x - 12 : root.width) - x
        spacing: 1

        ElidedText {
            objectName: "text"
            width: parent.width
            text: root.text
            elide: root.elide
            revealed: root.revealed
            Accessible.ignored: true
        }

        Loader {
            width: parent.width
            active: root.hasSubtitle
            visible: active

            sourceComponent: ElidedText {
                objectName: "subtitle"
                text: root.subtitle
                textStyle: Typography.caption
                color: Theme.colors.secondary
                Accessible.ignored: true
            }
        }
    }

    ActiveBadge {
        id: badge

        anchors.verticalCenter: parent.verticalCenter
        x: root.width - width
        active: root.active
    }
}
