// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

// The wheel over an area that scrolls by `line`: scrolled(distance), downwards.
WheelHandler {
    id: root

    property real line: 40

    signal scrolled(real distance)

    target: null
    acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    onWheel: event => scrolled(event.pixelDelta.y !== 0 ? -event.pixelDelta.y
                                                        : -event.angleDelta.y / 120 * 1.5 * line)
}
