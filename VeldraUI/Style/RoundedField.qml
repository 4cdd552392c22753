// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

import VeldraUI.Style

// A single-line field with a rounded border: text, placeholderText, textStyle, readOnly;
// accepted() on Return, textEdited() on typing. `framed: false` leaves out border and padding.
T.TextField {
    id: root

    property font textStyle: Typography.body
    property bool framed: true
    // As constants that the compiler knows: for an expression with Qt's name in it, the engine lists
    // all that Qt names, at the first field.
    readonly property int noAutoUppercase: Qt.ImhNoAutoUppercase
    readonly property int noPredictiveText: Qt.ImhNoPredictiveText
    readonly property bool focusedByKeyboard: activeFocus
        && (focusReason === Qt.TabFocusReason || focusReason === Qt.BacktabFocusReason)

    implicitWidth: 160
    implicitHeight: Math.max(contentHeight, placeholder.implicitHeight) + topPadding + bottomPadding
    padding: framed ? 4 : 0
    leftPadding: framed ? 7 : 0
    rightPadding: framed ? 7 : 0

    color: Theme.colors.primary
    opacity: enabled ? 1 : 0.5
    placeholderTextColor: Theme.colors.tertiary
    selectionColor: Theme.colors.selectedText
    selectedTextColor: Theme.colors.primary
    font.pixelSize: textStyle.pixelSize
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    // Shows its beginning until someone writes in it.
    autoScroll: activeFocus
    inputMethodHints: noAutoUppercase | noPredictiveText

    background: Rectangle {
        visible: root.framed
        radius: 5
        color: Theme.colors.field
        border.color: root.activeFocus ? Theme.colors.accent : Theme.colors.fieldBorder
    }

    Accessible.role: Accessible.EditableText
    Accessible.name: placeholderText

    FocusRing {
        shown: root.framed && root.focusedByKeyboard
        gap: 0
        radius: 7
    }

    Text {
        id: placeholder

        objectName: "placeholder"
        anchors.fill: parent
        anchors.leftMargin: root.leftPadding
        anchors.rightMargin: root.rightPadding
        visible: root.length === 0 && root.preeditText === ""
        text: root.placeholderText
        textFormat: Text.PlainText
        elide: Text.ElideRight
        color: root.placeholderTextColor
        font: root.font
        verticalAlignment: Text.AlignVCenter
    }
}
