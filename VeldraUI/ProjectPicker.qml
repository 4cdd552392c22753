// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// Chooses one of many projects, or none: `ids`, `selectedId` (empty for none; it need not be among
// the ids). chosen(id): the user's choice.
PopUpPicker {
    id: root

    required property list<string> ids
    required property string selectedId

    signal chosen(string id)

    // To measure the texts of thousands of projects would take longer than to show the page.
    measured: false
    menuWidth: 300
    label: qsTr("Project")
    model: [qsTr("Select a project")].concat(ids)
    displayText: selectedId === "" ? qsTr("Select a project") : selectedId

    onModelChanged: select()
    onSelectedIdChanged: select()
    onActivated: index => chosen(index === 0 ? "" : ids[index - 1])

    Component.onCompleted: select()

    function select() {
        currentIndex = selectedId === "" ? 0 : model.indexOf(selectedId, 1)
    }
}
