// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI
import VeldraUI.Style

Item {
    id: window

    width: 400
    height: 100

    StatusBadge {
        id: badge

        text: "configured"
        color: window.Theme.colors.orange
    }

    TestCase {
        readonly property Symbol symbol: findChild(badge, "symbol")
        readonly property Text text: findChild(badge, "text")
        readonly property Rectangle tint: findChild(badge, "tint")

        name: "StatusBadge"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            badge.icon = ""
        }

        function place(item: Item): rect {
            return item.mapToItem(badge, 0, 0, item.width, item.height)
        }

        function test_showsItsTextSixAndTwoPointsFromTheEdges() {
            verify(!symbol.visible)
            compare(text.text, "configured")
            compare(place(text).left, 6)
            compare(badge.width - place(text).right, 6)
            compare(place(text).top, 2)
            compare(badge.height - place(text).bottom, 2)
        }

        function test_showsItsIconBeforeTheText() {
            badge.icon = "checkmark"
            verify(symbol.visible)
            compare(symbol.name, "checkmark")
            compare(symbol.size, Typography.caption.pixelSize)
            compare(place(symbol).left, 6)
            compare(place(text).left - place(symbol).right, 4)
            compare(badge.width - place(text).right, 6)
        }

        function test_isTintedWithItsColour() {
            compare(tint.width, badge.width)
            compare(tint.height, badge.height)
            compare(tint.radius, 4)
            verify(Qt.colorEqual(tint.color, Qt.alpha(window.Theme.colors.orange, 0.15)))
        }

        function test_looksAsItShould() {
            compare(text.font.pixelSize, Typography.callout.pixelSize)
            compare(text.font.weight, Font.Medium)
        }

        function test_isReadByAssistiveTechnology() {
            compare(text.Accessible.role, Accessible.StaticText)
            compare(text.Accessible.name, "configured")
        }

        function test_centresItsPartsVertically() {
            badge.icon = "checkmark"
            for (const part of [symbol, text])
                fuzzyCompare(place(part).y + part.height / 2, badge.height / 2, 0.5)
        }

        function test_isWrittenInItsColour() {
            verify(Qt.colorEqual(text.color, badge.color))
            verify(Qt.colorEqual(symbol.color, badge.color))
        }
    }
}
