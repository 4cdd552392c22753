// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

// What this application is, and where to learn more.
Item {
    id: root

    readonly property url address: "https://torvi.example"
    readonly property string version: Qt.application.version

    Column {
        objectName: "stack"
        anchors.centerIn: parent
        width: parent.width - 32
        spacing: 8

        ApplicationIcon {
            objectName: "icon"
            anchors.horizontalCenter: parent.horizontalCenter
            width: 96
            height: 96

            Accessible.role: Accessible.Graphic
            Accessible.name: qsTr("Torvi icon")
        }

        StyledText {
            objectName: "name"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: "Torvi"
            textStyle: Typography.title
            weight: Font.Bold
            Accessible.role: Accessible.Heading
        }

        StyledText {
            objectName: "description"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: qsTr("Google Cloud authentication manager for macOS")
            color: Theme.colors.secondary
        }

        LinkButton {
            objectName: "link"
            anchors.horizontalCenter: parent.horizontalCenter
            text: new URL(root.address).hostname
            textStyle: Typography.callout
            help: root.address

            onClicked: Qt.openUrlExternally(root.address)
        }
    }

    StyledText {
        objectName: "version"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        visible: root.version !== ""
        text: qsTr("Version %1").arg(root.version)
        textStyle: Typography.caption
        color: Theme.colors.tertiary
    }
}
