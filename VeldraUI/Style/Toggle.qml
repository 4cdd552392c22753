// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// An option that is on or off: text, checked; toggled() is the user's change.
T.Switch {
    id: root

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(implicitContentHeight, implicitIndicatorHeight)
    rightPadding: 44
    hoverEnabled: true

    contentItem: StyledText {
        opacity: root.enabled ? 1 : 0.4
        text: root.text
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    indicator: Rectangle {
        implicitWidth: 34
        implicitHeight: 20
        x: root.width - width
        anchors.verticalCenter: parent ? parent.verticalCenter : undefined
        radius: height / 2
        opacity: root.enabled ? 1 : 0.5
        color: root.checked ? (root.down ? Theme.colors.accentPressed
                                         : root.hovered ? Theme.colors.accentHovered : Theme.colors.accent)
                            : root.down ? Theme.colors.controlPressed
                                        : root.hovered ? Theme.colors.controlHovered : Theme.colors.control
        border.width: root.checked ? 0 : 1
        border.color: Theme.colors.fieldBorder

        Rectangle {
            x: root.checked ? parent.width - width - 2 : 2
            anchors.verticalCenter: parent.verticalCenter
            width: 16
            height: 16
            radius: 8
            color: Theme.colors.knob
            border.color: Theme.colors.controlBorder
            border.width: root.checked ? 0 : 1
        }

        FocusRing {
            target: root
            radius: parent.radius + 3
        }
    }

    Keys.onReturnPressed: change()
    Keys.onEnterPressed: change()

    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: change()
    Accessible.onToggleAction: change()

    function change() {
        if (!enabled)
            return
        toggle()
        toggled()
    }
}
