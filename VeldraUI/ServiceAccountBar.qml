// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

// Chooses the project whose service accounts are shown, and where an impersonation applies:
// projectChosen(id), modeChosen(mode).
Item {
    id: root

    required property AuthState stateManager
    required property string selectedProjectId
    required property int selectedMode

    readonly property real inset: 12

    signal projectChosen(string id)
    signal modeChosen(int mode)

    implicitHeight: projectPicker.height + 2 * inset

    StyledText {
        id: projectLabel

        objectName: "projectLabel"
        anchors.verticalCenter: parent.verticalCenter
        x: root.inset
        text: qsTr("Project:")
        textStyle: Typography.callout
    }

    ProjectPicker {
        id: projectPicker

        objectName: "projectPicker"
        anchors.verticalCenter: parent.verticalCenter
        x: projectLabel.x + projectLabel.width + 8
        width: Math.max(80, Math.min(300, parent.width - root.inset - modePicker.width - 12 - x))
        small: true
        ids: root.stateManager.projectIds
        selectedId: root.selectedProjectId

        onChosen: id => root.projectChosen(id)
    }

    SegmentedPicker {
        id: modePicker

        objectName: "modePicker"
        anchors.verticalCenter: parent.verticalCenter
        x: projectPicker.x + projectPicker.width + 12
        width: Math.min(250, implicitWidth)
        label: qsTr("Mode")
        model: root.stateManager.modeTexts
        currentIndex: root.selectedMode
        small: true

        onActivated: index => root.modeChosen(index)
    }
}
