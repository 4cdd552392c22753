// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

Item {
    width: 600
    height: 300

    StyledText { x: 20; y: 20; text: "Behind the sheet" }
    BorderedButton { x: 20; y: 50; text: "Create Configuration" }

    Sheet {
        id: sheet
        visible: true
        title: "New Configuration"

        Column {
            width: 260
            spacing: 16
            StyledText { width: parent.width; horizontalAlignment: Text.AlignHCenter; text: "New Configuration"; textStyle: Typography.headline }
            RoundedField { width: parent.width; placeholderText: "Configuration name"; focus: true }
            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: 8
                BorderedButton { text: "Cancel" }
                ProminentButton { text: "Create"; enabled: false }
            }
        }
    }
}
