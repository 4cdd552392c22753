// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// The buttons below the popover's contents. openManager(), quit(), refresh().
Item {
    id: root

    property bool isLoading: false
    property bool showRefreshSuccess: false

    signal openManager()
    signal quit()
    signal refresh()

    implicitHeight: row.height + 18

    Item {
        id: row

        x: 12
        y: 10
        width: root.width - 24
        height: managerButton.height // also while the indicator shows, which is higher

        PlainButton {
            id: managerButton

            objectName: "managerButton"
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Manager")
            symbolName: "arrow.up.forward.square"
            textStyle: Typography.callout

            onClicked: root.openManager()
        }

        PlainButton {
            objectName: "quitButton"
            anchors.verticalCenter: parent.verticalCenter
            x: managerButton.width + 12
            text: qsTr("Quit")
            symbolName: "power"
            textStyle: Typography.callout

            onClicked: root.quit()
        }

        ProgressIndicator {
            id: progress

            objectName: "progress"
            anchors.verticalCenter: parent.verticalCenter
            x: refreshButton.x - 12 - width
            visible: root.isLoading
            small: true
        }

        PlainButton {
            id: refreshButton

            objectName: "refreshButton"
            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - width
            enabled: !root.isLoading
            text: root.showRefreshSuccess ? qsTr("Done") : qsTr("Refresh")
            symbolName: root.showRefreshSuccess ? "checkmark" : "arrow.clockwise"
            textStyle: Typography.callout

            onClicked: root.refresh()
        }
    }
}
