// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// Chooses one of many in a menu of its own. `label` is read aloud (a FormRow shows it); `model`: the
// texts, or objects with textRole and valueRole; currentIndex; activated(index): the user's choice.
// It is as wide as its widest text unless that is not `measured`; the menu is at least `menuWidth`
// wide.
T.ComboBox {
    id: root

    property string label: ""
    property bool small: false
    property bool measured: true
    readonly property real widestText: measured && model ? widest(count, (contentItem as Text).font) : 0
    // An entry has a check mark before its text.
    property real menuWidth: Math.max(120, widestText + 40)

    implicitWidth: Math.max(120, widestText + leftPadding + rightPadding)
    implicitHeight: small ? 22 : 26
    leftPadding: 9
    rightPadding: 26
    hoverEnabled: true

    font.pixelSize: small ? Typography.callout.pixelSize : Typography.body.pixelSize

    delegate: PickerEntry {
        required property int index

        width: ListView.view ? ListView.view.width : implicitWidth
        text: root.textAt(index)
        chosen: root.currentIndex === index
        highlighted: root.highlightedIndex === index
        Theme.dark: root.Theme.dark
    }

    indicator: Symbol {
        x: root.width - width - 8
        anchors.verticalCenter: parent ? parent.verticalCenter : undefined
        opacity: root.enabled ? 1 : 0.4
        name: "chevron.up.chevron.down"
        size: Typography.caption.pixelSize
        color: Theme.colors.secondary
    }

    contentItem: ElidedText {
        opacity: root.enabled ? 1 : 0.4
        text: root.displayText
        textStyle: root.small ? Typography.callout : Typography.body
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    background: Rectangle {
        radius: root.small ? 5 : 6
        opacity: root.enabled ? 1 : 0.5
        color: root.down ? Theme.colors.controlPressed
                         : root.hovered ? Theme.colors.controlHovered : Theme.colors.control
        border.color: Theme.colors.controlBorder

        FocusRing {
            target: root
        }
    }

    popup: T.Popup {
        y: root.height + 3
        width: Math.max(root.width, root.menuWidth)
        implicitHeight: Math.min(contentItem.implicitHeight + 8, 260)
        margins: 4
        padding: 4

        contentItem: ListView {
            implicitHeight: contentHeight
            clip: true
            model: root.delegateModel
            currentIndex: root.highlightedIndex
            highlightMoveDuration: 0
            boundsBehavior: Flickable.StopAtBounds

            T.ScrollBar.vertical: ScrollIndicator {}
        }

        background: Rectangle {
            Theme.dark: root.Theme.dark

            radius: 7
            color: Theme.colors.popupBackground
            border.color: Theme.colors.popupBorder
        }
    }

    FontMetrics {
        id: metrics
    }

    function widest(entries: int, font: font): real {
        metrics.font = font
        let width = 0
        for (let index = 0; index < entries; ++index)
            width = Math.max(width, metrics.advanceWidth(textAt(index)))
        return Math.ceil(width) + 1
    }

    // At the release, for that is where the open menu takes Return as the choice.
    Keys.onReleased: event => {
        event.accepted = !popup.visible && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
        if (event.accepted)
            popup.open()
    }

    Accessible.role: Accessible.ComboBox
    Accessible.name: label
    Accessible.description: displayText
    Accessible.onPressAction: if (enabled) popup.open()
}
