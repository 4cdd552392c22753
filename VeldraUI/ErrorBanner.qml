// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// Tells a failure: `error` is its message for the user; empty says "An error occurred". With
// `retryable` there is a Retry button. Signals: dismiss(), retry(). A message of many lines scrolls
// inside the banner, so that both buttons stay where they are.
Rectangle {
    id: root

    property string error: ""
    property bool retryable: false
    readonly property string message: error === "" ? qsTr("An error occurred") : error

    signal dismiss()
    signal retry()

    implicitHeight: row.height + 16
    radius: 6
    color: Qt.alpha(Theme.colors.red, 0.1)

    Accessible.role: Accessible.AlertMessage
    Accessible.name: message

    Item {
        id: row

        x: 8
        y: 8
        width: root.width - 16
        height: Math.max(symbol.height, scrollArea.height, retryButton.visible ? retryButton.height : 0,
                         dismissButton.height)

        Symbol {
            id: symbol

            objectName: "symbol"
            anchors.verticalCenter: parent.verticalCenter
            name: "exclamationmark.triangle.fill"
            size: Typography.body.pixelSize
            color: Theme.colors.yellow
        }

        ScrollArea {
            id: scrollArea

            readonly property Item next: retryButton.visible ? retryButton : dismissButton
            readonly property int lines: 8
            readonly property real lineHeight: messageText.contentHeight / messageText.lineCount

            objectName: "text"
            anchors.verticalCenter: parent.verticalCenter
            x: symbol.width + 8
            // Its handle stands in the gap before the next button.
            width: next.x - x
            contentHeight: messageText.height
            height: Math.min(messageText.height, lines * lineHeight)

            T.TextArea {
                id: messageText

                objectName: "message"
                width: scrollArea.width - 8
                implicitHeight: contentHeight
                text: root.message
                textFormat: TextEdit.PlainText
                wrapMode: TextEdit.Wrap
                readOnly: true
                selectByMouse: true
                // A stop for the keyboard where there is something to scroll.
                activeFocusOnTab: scrollArea.scrolls || activeFocus
                color: Theme.colors.primary
                selectionColor: Theme.colors.selectedText
                selectedTextColor: Theme.colors.primary
                font.pixelSize: Typography.callout.pixelSize

                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }

        Rectangle {
            objectName: "focusMark"
            anchors.fill: scrollArea
            anchors.margins: -4
            visible: messageText.activeFocus && (messageText.focusReason === Qt.TabFocusReason
                                                 || messageText.focusReason === Qt.BacktabFocusReason)
            radius: 4
            color: "transparent"
            border.width: 2
            border.color: Theme.colors.focusRing
        }

        BorderedButton {
            id: retryButton

            objectName: "retryButton"
            anchors.verticalCenter: parent.verticalCenter
            x: dismissButton.x - 8 - width
            visible: root.retryable
            text: qsTr("Retry")
            textStyle: Typography.callout
            small: true

            onClicked: root.retry()
        }

        PlainButton {
            id: dismissButton

            objectName: "dismissButton"
            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - width
            symbolName: "xmark"
            textStyle: Typography.caption
            foreground: Theme.colors.secondary
            Accessible.name: qsTr("Dismiss")

            onClicked: root.dismiss()
        }
    }
}
