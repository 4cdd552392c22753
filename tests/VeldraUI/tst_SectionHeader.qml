// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI
import VeldraUI.Style

Item {
    width: 400
    height: 100

    SectionHeader {
        id: header
    }

    TestCase {
        readonly property Symbol symbol: findChild(header, "symbol")
        readonly property Text title: findChild(header, "title")

        name: "SectionHeader"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            header.title = "Projects"
            header.icon = "folder"
        }

        function place(item: Item): rect {
            return item.mapToItem(header, 0, 0, item.width, item.height)
        }

        function test_withoutAnIconShowsOnlyTheUpperCasedTitle() {
            header.icon = ""
            verify(!symbol.visible)
            compare(title.text, "PROJECTS")
            compare(place(title).left, 4)
        }

        function test_withAnIconShowsItBeforeTheTitle() {
            verify(symbol.visible)
            compare(symbol.name, "folder")
            compare(place(symbol).left, 4)
            compare(place(title).left - place(symbol).right, 4)
        }

        function test_leavesEightPointsAboveAndTwoBelow() {
            compare(Math.min(place(symbol).top, place(title).top), 8)
            compare(header.height - Math.max(place(symbol).bottom, place(title).bottom), 2)
            compare(header.implicitWidth, place(title).right + 4)
        }

        function test_looksAsItShould() {
            compare(symbol.size, Typography.callout.pixelSize)
            compare(title.font.pixelSize, Typography.callout.pixelSize)
            compare(title.font.weight, Font.DemiBold)
            verify(Qt.colorEqual(title.color, header.Theme.colors.secondary))
            verify(Qt.colorEqual(symbol.color, header.Theme.colors.secondary))
        }

        function test_isAHeadingForAssistiveTechnology() {
            compare(title.Accessible.role, Accessible.Heading)
            compare(title.Accessible.name, "PROJECTS")
        }

        function test_centresItsPartsVertically() {
            const line = header.height - 8 - 2
            for (const part of [symbol, title])
                fuzzyCompare(place(part).y + part.height / 2, 8 + line / 2, 0.5)
        }

        function test_withoutAnIconIsAsHighAsItsTitleAsksFor() {
            header.icon = ""
            compare(header.height, 8 + title.height + 2)
        }
    }
}
