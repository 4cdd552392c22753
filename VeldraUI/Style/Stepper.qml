// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// A number within bounds, changed one step at a time: `text` is the whole label (with the value in
// it, as its user words it), from, to, stepSize, value; valueModified() is the user's change.
T.SpinBox {
    id: root

    property string text: ""
    // The names that assistive technology looks for.
    readonly property int minimumValue: from
    readonly property int maximumValue: to

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(implicitContentHeight, 26)
    rightPadding: 28
    editable: false
    hoverEnabled: true

    contentItem: StyledText {
        opacity: root.enabled ? 1 : 0.4
        text: root.text
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    up.indicator: StepperArrow {
        x: root.width - width
        y: root.height / 2 - height
        symbolName: "chevron.up"
        enabled: root.enabled && root.value < root.to
        pressed: root.up.pressed
        hovered: root.up.hovered
    }

    down.indicator: StepperArrow {
        x: root.width - width
        y: root.height / 2
        symbolName: "chevron.down"
        enabled: root.enabled && root.value > root.from
        pressed: root.down.pressed
        hovered: root.down.hovered
    }

    background: Item {
        Rectangle {
            x: root.width - width
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 24
            radius: 6
            opacity: root.enabled ? 1 : 0.5
            color: Theme.colors.control
            border.color: Theme.colors.controlBorder

            FocusRing {
                target: root
            }
        }
    }

    Accessible.role: Accessible.SpinBox
    Accessible.name: text
    Accessible.onIncreaseAction: step(1)
    Accessible.onDecreaseAction: step(-1)

    function step(by: int) {
        if (!enabled)
            return
        const before = value
        if (by > 0)
            increase()
        else
            decrease()
        if (value !== before)
            valueModified()
    }
}
