// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

import VeldraUI.Style

// Chooses one of a few texts that all stand side by side. `label` before the segments (hidden by
// labelVisible: false, still read aloud), `model`: the texts, `currentIndex`; `small` for the small
// control size. activated(index) is the user's choice; who binds currentIndex changes it then.
Item {
    id: root

    property string label: ""
    property bool labelVisible: true
    property list<string> model
    property int currentIndex: -1
    property bool small: false

    signal activated(int index)

    implicitWidth: segments.offset + model.length * segments.widest
    implicitHeight: segments.implicitHeight
    opacity: enabled ? 1 : 0.5

    Accessible.role: Accessible.Grouping
    Accessible.name: label

    StyledText {
        id: labelText

        anchors.verticalCenter: parent.verticalCenter
        visible: root.labelVisible && text !== ""
        text: root.label
        textStyle: root.small ? Typography.callout : Typography.body
    }

    Rectangle {
        anchors.fill: segments
        radius: root.small ? 5 : 6
        color: Theme.colors.quaternaryFill
    }

    Row {
        id: segments

        readonly property list<real> widths: {
            const widths = []
            for (let i = 0; i < repeater.count; ++i)
                widths.push(Math.ceil(repeater.itemAt(i).implicitWidth))
            return widths
        }
        readonly property real widest: Math.max(0, ...widths)
        readonly property real offset: labelText.visible ? Math.ceil(labelText.implicitWidth) + 8 : 0

        readonly property real share: width / root.model.length
        readonly property bool cramped: share < widest
        // What each has beside its own width then.
        readonly property real spare: share - widths.reduce((sum, width) => sum + width, 0) / root.model.length

        x: offset
        width: root.width - offset

        Repeater {
            id: repeater

            model: root.model

            Segment {
                required property string modelData
                required property int index

                width: Math.round(segments.startOf(index + 1)) - Math.round(segments.startOf(index))
                small: root.small
                text: modelData
                checked: index === root.currentIndex
                separated: index > 0 && !checked && index - 1 !== root.currentIndex

                onClicked: root.activated(index)
                onStepped: by => root.step(index, by)
            }
        }

        // All are alike in width, unless one of them would not have its own then.
        function startOf(place: int): real {
            return cramped ? widths.slice(0, place).reduce((start, width) => start + width + spare, 0)
                           : place * share
        }
    }

    function step(from: int, by: int) {
        const to = from + by
        if (to < 0 || to >= model.length)
            return
        repeater.itemAt(to).forceActiveFocus(Qt.TabFocusReason)
        activated(to)
    }
}
