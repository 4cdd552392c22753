// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// One symbol in one colour. `size` is the pixel size of the text style that it stands beside;
// the symbol's square is a little larger, as capital letters and symbols look equal then.
Image {
    id: root

    // A name such as "folder.fill"; empty shows nothing.
    property string name: ""
    property real size: Typography.callout.pixelSize
    property color color: Theme.colors.primary

    // Even, so that it stands on whole pixels beside whatever is centred with it.
    readonly property int side: 2 * Math.round(size * 1.15 / 2)

    width: side
    height: side

    source: Symbols.source(name, color)
    sourceSize.width: side
    sourceSize.height: side
    fillMode: Image.Pad
    smooth: false
}
