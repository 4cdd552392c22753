// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// The title of a section of a ListArea; it takes no room while it is not `shown`. It is not `told`
// where rows follow that say it themselves: a list makes it after the first of them.
Item {
    id: root

    property string text: ""
    property bool shown: true
    property bool told: true

    width: parent ? parent.width : 0
    implicitHeight: shown ? title.height + 12 : 0
    visible: shown

    StyledText {
        id: title

        objectName: "title"
        x: 12
        y: 8
        text: root.text
        textStyle: Typography.callout
        weight: Font.DemiBold
        color: Theme.colors.secondary
        Accessible.role: Accessible.Heading
        Accessible.ignored: !root.told
    }
}
