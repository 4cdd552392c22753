// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// Explains or completes what it is shown for: `parent`, `text`, `visible`. It comes after a moment.
T.ToolTip {
    id: root

    x: 0
    y: parent ? parent.height + 6 : 0
    implicitWidth: Math.min(300, contentWidth + leftPadding + rightPadding)
    implicitHeight: contentHeight + topPadding + bottomPadding

    delay: 500
    margins: 6
    verticalPadding: 4
    horizontalPadding: 8
    closePolicy: T.Popup.NoAutoClose

    contentItem: Text {
        Theme.dark: root.parent ? root.parent.Theme.dark : true

        text: root.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        color: Theme.colors.primary
        font.pixelSize: Typography.caption.pixelSize

        Accessible.role: Accessible.ToolTip
        Accessible.name: text
    }

    background: Rectangle {
        Theme.dark: root.parent ? root.parent.Theme.dark : true

        radius: 5
        color: Theme.colors.popupBackground
        border.color: Theme.colors.popupBorder
    }
}
