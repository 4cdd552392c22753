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
        color: !root.checked ? Theme.colors.track
                             : root.down ? Theme.colors.accentPressed
                                         : root.hovered ? Theme.colors.accentHovered : Theme.colors.accent

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            visible: !root.checked && (root.down || root.hovered)
            color: root.down ? Theme.colors.pressed : Theme.colors.hovered
        }

        Rectangle {
            x: root.checked ? parent.width - width - 2 : 2
            y: 2
            width: 16
            height: 16
            radius: 8
            color: Theme.colors.knob
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
