// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// A text in one of Typography's styles: textStyle, weight (the style's own unless set), and
// `color`, primary unless set. Assistive technology reads it.
Text {
    id: root

    property font textStyle: Typography.body
    property int weight: textStyle.weight

    color: Theme.colors.primary
    font.pixelSize: textStyle.pixelSize
    font.weight: weight
    textFormat: Text.PlainText

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
