// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma Singleton

import QtQuick

// The text styles, sizes in points (device-independent pixels), in the desktop's own font:
// Typography.title, .headline, .body, .callout, .caption
QtObject {
    readonly property font title: Qt.font({ pixelSize: 22, weight: Font.Normal })
    readonly property font headline: Qt.font({ pixelSize: 13, weight: Font.DemiBold })
    readonly property font body: Qt.font({ pixelSize: 13, weight: Font.Normal })
    readonly property font callout: Qt.font({ pixelSize: 12, weight: Font.Normal })
    readonly property font caption: Qt.font({ pixelSize: 11, weight: Font.Normal })
}
