// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

// One row of a FormSection. With a `label`, the label stands left and the one child right, at its
// own width; without, the child takes the whole row.
Item {
    id: root

    default property alias content: holder.data
    property string label: ""
    readonly property real inset: 12

    width: parent ? parent.width : 0
    // As high with a toggle as with a picker.
    implicitHeight: Math.max(26, holder.childrenRect.height, labelText.implicitHeight) + 18

    Divider {
        x: root.inset
        width: parent.width - 2 * root.inset
        visible: !root.Positioner.isFirstItem
    }

    StyledText {
        id: labelText

        x: root.inset
        anchors.verticalCenter: parent.verticalCenter
        visible: text !== ""
        text: root.label
    }

    Item {
        id: holder

        readonly property real start: labelText.visible ? labelText.x + labelText.width + 12 : root.inset

        x: labelText.visible ? Math.max(start, root.width - root.inset - childrenRect.width) : start
        y: (root.height - childrenRect.height) / 2
        width: labelText.visible ? childrenRect.width : root.width - 2 * root.inset
        height: childrenRect.height
    }
}
