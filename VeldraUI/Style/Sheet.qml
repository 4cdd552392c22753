// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// A dialog inside the window, above everything else in it: open(), close(); Escape closes it.
// Its children are its content; `title` is read aloud.
T.Popup {
    id: root

    property string title: ""
    property Item focusedBefore: null

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    padding: 20

    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape

    onAboutToShow: focusedBefore = parent.Window.activeFocusItem
    onClosed: {
        if (focusedBefore)
            focusedBefore.forceActiveFocus(Qt.PopupFocusReason)
        focusedBefore = null
    }

    contentItem: Item {
        implicitWidth: childrenRect.width
        implicitHeight: childrenRect.height

        Accessible.role: Accessible.Dialog
        Accessible.name: root.title
    }

    background: Rectangle {
        radius: 10
        color: Theme.colors.popupBackground
        border.color: Theme.colors.popupBorder
    }

    T.Overlay.modal: Rectangle {
        color: Theme.colors.scrim
    }
}
