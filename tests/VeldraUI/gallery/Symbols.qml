// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

Grid {
    padding: 16
    columns: 9
    spacing: 12

    Repeater {
        model: ["arrow.clockwise", "arrow.up.forward.square", "bolt", "bolt.fill", "bolt.badge.a", "checkmark",
                "chevron.down", "chevron.up", "chevron.up.chevron.down", "cloud.bolt.fill", "cloud.fill",
                "doc.on.clipboard", "exclamationmark.triangle.fill", "folder", "folder.fill", "gear",
                "gearshape.fill", "info.circle", "key", "key.fill", "magnifyingglass", "person.2",
                "person.badge.key", "person.fill", "power", "progress", "slider.horizontal.3", "star",
                "star.fill", "terminal.fill", "trash", "xmark", "xmark.circle.fill"]

        Row {
            required property string modelData
            spacing: 4
            Symbol { name: parent.modelData; size: Typography.caption.pixelSize; color: Theme.colors.orange }
            Symbol { name: parent.modelData }
            Symbol { name: parent.modelData; size: 28; color: Theme.colors.secondary }
        }
    }
}
