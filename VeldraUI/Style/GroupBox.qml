// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// A titled frame around what belongs together: title; its child is its content. `inset` is the
// space between frame and content.
T.GroupBox {
    id: root

    property real inset: 8
    readonly property real headingHeight: implicitLabelHeight

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: inset
    topPadding: inset + headingHeight

    label: StyledText {
        leftPadding: 2
        bottomPadding: 6
        text: root.title
        textStyle: Typography.callout
        weight: Font.DemiBold
        color: Theme.colors.secondary
        Accessible.ignored: true // the box has its name
    }

    background: Rectangle {
        y: root.headingHeight
        width: root.width
        height: root.height - root.headingHeight
        radius: 8
        color: Theme.colors.groupBackground
        border.color: Theme.colors.divider
    }

    Accessible.role: Accessible.Grouping
    Accessible.name: title
}
