// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

// A finger on an area that scrolls: scrolled(distance), downwards.
DragHandler {
    id: root

    property real before: 0

    signal scrolled(real distance)

    target: null
    acceptedDevices: PointerDevice.TouchScreen
    xAxis.enabled: false
    onActiveChanged: before = 0
    onActiveTranslationChanged: {
        scrolled(before - activeTranslation.y)
        before = activeTranslation.y
    }
}
