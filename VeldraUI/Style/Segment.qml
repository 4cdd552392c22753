// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// One choice of a SegmentedPicker. stepped(by): an arrow key, to the neighbour before or after.
// A radio button, since a template tells assistive technology its own role whatever is set here.
T.RadioButton {
    id: root

    property bool small: false
    property bool separated: false

    signal stepped(int by)

    // The picker says which one is checked.
    checkable: false
    autoExclusive: false

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: small ? 22 : 26
    horizontalPadding: small ? 8 : 12

    // One stop of the Tab key for the whole picker: the chosen segment.
    focusPolicy: checked || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    hoverEnabled: true

    contentItem: Text {
        text: root.text
        textFormat: Text.PlainText
        elide: Text.ElideRight
        color: root.checked ? Theme.colors.onAccent : Theme.colors.primary
        font.pixelSize: root.small ? Typography.callout.pixelSize : Typography.body.pixelSize
        font.weight: root.checked ? Font.Medium : Font.Normal
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    background: Item {
        Rectangle {
            width: 1
            height: parent.height / 2
            anchors.verticalCenter: parent.verticalCenter
            visible: root.separated
            color: Theme.colors.divider
        }

        Rectangle {
            anchors.fill: parent
            radius: root.small ? 5 : 6
            color: root.checked ? (root.down ? Theme.colors.accentPressed : Theme.colors.accent)
                                : root.down ? Theme.colors.pressed
                                            : root.hovered ? Theme.colors.hovered : "transparent"

            FocusRing {
                target: root
            }
        }
    }

    Keys.onLeftPressed: stepped(-1)
    Keys.onRightPressed: stepped(1)
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: if (enabled) clicked()
    Accessible.onToggleAction: if (enabled) clicked()
}
