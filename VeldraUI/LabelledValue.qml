// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// One line of a list of facts: `label` in a column of its own, and `value`.
Item {
    id: root

    required property string label
    required property string value

    implicitHeight: Math.max(labelText.height, valueText.height)

    StyledText {
        id: labelText

        objectName: "label"
        width: 120
        text: root.label
        textStyle: Typography.callout
        weight: Font.Medium
    }

    ElidedText {
        id: valueText

        objectName: "value"
        x: labelText.width
        width: Math.min(implicitWidth, root.width - x)
        elide: Text.ElideMiddle
        text: root.value
        textStyle: Typography.callout
        color: Theme.colors.secondary
    }
}
