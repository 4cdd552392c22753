// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// One row of a RowColumn; `place` is its number from 0 on, `details` what assistive technology says
// after its text, besides its place.
RowButton {
    id: root

    required property RowArea area
    required property int place
    property string details: ""

    readonly property bool isCurrent: place === area.currentRow

    width: area.width
    focusPolicy: Qt.ClickFocus

    onIsCurrentChanged: if (isCurrent) area.adopt(root)
    // A row that is being removed has the place -1.
    onPlaceChanged: if (activeFocus && place >= 0) area.enter(root, place)
    onActiveFocusChanged: if (activeFocus) area.enter(root, place)

    Accessible.description: (details === "" ? "" : details + ", ")
                            + qsTr("%1 of %2").arg(place + 1).arg(area.count)
    Accessible.focusable: true

    Component.onCompleted: if (isCurrent) area.adopt(root)
}
