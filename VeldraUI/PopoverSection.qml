// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

// A section of the popover with a hairline above it: `view` is made of its file when it is wanted,
// with the `name` that it is found by.
Column {
    id: root

    required property AuthState stateManager
    required property string name
    required property url view
    readonly property Item item: loader.item as Item

    spacing: 2

    Divider {
        width: root.width
    }

    Loader {
        id: loader

        width: root.width
    }

    function make() {
        if (!item)
            loader.setSource(view, { objectName: name, stateManager: stateManager })
        forceLayout()
    }
}
