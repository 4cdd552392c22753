// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// A row of a ListArea that is no button itself but may hold some: RowAction items in its contentItem.
// `text` and `details` are read by assistive technology, to which a plain control would tell no role.
T.ItemDelegate {
    id: root

    required property int index
    property string details: ""

    readonly property bool isCurrent: ListView.isCurrentItem
    readonly property bool isLastOfSection: ListView.nextSection !== ListView.section
    readonly property ListArea area: ListView.view as ListArea

    width: area ? area.width : implicitWidth
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: 12
    verticalPadding: 4

    focusPolicy: isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus

    background: Item {
        Divider {
            x: root.leftPadding
            y: root.height - 1
            width: root.width - 2 * x
            visible: root.area !== null && root.index + 1 < root.area.count && !root.isLastOfSection
            Accessible.ignored: true
        }

        Item {
            x: 4
            width: parent.width - 8
            height: parent.height

            FocusRing {
                target: root
                gap: -2
            }
        }
    }

    onActiveFocusChanged: if (activeFocus) area.currentIndex = index
    onVisualFocusChanged: if (visualFocus) area.reveal(index)

    Accessible.role: Accessible.ListItem
    Accessible.name: text
    Accessible.description: (details === "" ? "" : details + ", ")
                            + qsTr("%1 of %2").arg(index + 1).arg(area ? area.count : 0)
    Accessible.focusable: true
    Accessible.onPressAction: area.focusRow(index)
}
