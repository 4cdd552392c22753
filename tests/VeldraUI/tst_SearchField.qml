// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI
import VeldraUI.Style

Item {
    id: window

    property string query: ""

    width: 400
    height: 100

    SearchField {
        id: search

        width: 300
        placeholder: "Filter projects..."
        text: window.query
        onEdited: newText => {
            window.query = newText
            testCase.edits.push(newText)
        }
    }

    TestCase {
        id: testCase

        property var edits: []
        readonly property Symbol symbol: findChild(search, "symbol")
        readonly property Item field: findChild(search, "field")
        readonly property Item clearButton: findChild(search, "clearButton")

        name: "SearchField"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            window.query = ""
            edits = []
            field.forceActiveFocus(Qt.MouseFocusReason)
        }

        function place(item: Item): rect {
            return item.mapToItem(search, 0, 0, item.width, item.height)
        }

        function test_showsTheClearButtonOnlyWhileThereIsText() {
            verify(!clearButton.visible)
            keyClick("w")
            verify(clearButton.visible)
            keyClick(Qt.Key_Backspace)
            verify(!clearButton.visible)
        }

        function test_clearingHidesTheClearButtonAgain() {
            keyClick("w")
            mouseClick(clearButton)
            compare(search.text, "")
            compare(window.query, "")
            verify(!clearButton.visible)
        }

        function test_tellsWhatIsTyped() {
            keyClick("w")
            keyClick("e")
            mouseClick(clearButton)
            compare(edits, ["w", "we", ""])
        }

        function test_followsItsOwnerAlsoAfterTypingAndClearing() {
            keyClick("w")
            mouseClick(clearButton)
            window.query = "from outside"
            compare(search.text, "from outside")
            compare(edits, ["w", ""])
        }

        function test_keepsSpaces() {
            keyClick(" ")
            compare(window.query, " ")
            verify(clearButton.visible)
        }

        function test_clearsByKey() {
            keyClick("w")
            clearButton.item.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Return)
            compare(search.text, "")
        }

        function test_keepsTheKeyboardInTheFieldWhenCleared() {
            keyClick("w")
            mouseClick(clearButton)
            verify(field.activeFocus)
        }

        function test_measuresSixPointsAroundAndBetween() {
            window.query = "web"
            compare(place(symbol).left, 6)
            compare(place(field).left - place(symbol).right, 6)
            compare(place(clearButton).left - place(field).right, 6)
            compare(place(clearButton).right, search.width - 6)
            compare(search.height, Math.max(symbol.height, field.height) + 12)
            for (const part of [symbol, field, clearButton])
                fuzzyCompare(place(part).y + part.height / 2, search.height / 2, 0.5)
        }

        function test_givesTheFieldAllWidthWhileThereIsNothingToClear() {
            compare(place(field).right, search.width - 6)
        }

        function test_keepsItsHeightWhenTheClearButtonComes() {
            const before = search.height
            window.query = "web"
            compare(search.height, before)
        }

        function test_theKeyboardsRingIsAroundItAll() {
            const ring = findChild(search, "focusRing")
            verify(!ring.visible)
            field.focus = false
            field.forceActiveFocus(Qt.TabFocusReason)
            verify(ring.visible)
            compare(ring.mapToItem(search, 0, 0), Qt.point(-2, -2))
            compare([ring.width, ring.height], [search.width + 4, search.height + 4])
        }

        function test_looksAsItShould() {
            window.query = "web"
            compare(symbol.name, "magnifyingglass")
            compare(symbol.size, Typography.callout.pixelSize)
            verify(Qt.colorEqual(symbol.color, search.Theme.colors.secondary))
            verify(!field.framed)
            compare(field.font.pixelSize, Typography.body.pixelSize)
            compare(field.placeholderText, "Filter projects...")
            compare(clearButton.item.symbolName, "xmark.circle.fill")
            compare(clearButton.item.textStyle.pixelSize, Typography.callout.pixelSize)
            verify(Qt.colorEqual(clearButton.item.foreground, search.Theme.colors.secondary))
            verify(Qt.colorEqual(search.color, search.Theme.colors.quaternaryFill))
            compare(search.radius, 6)
        }

        function test_namesItsPartsForAssistiveTechnology() {
            window.query = "web"
            compare(field.Accessible.name, "Filter projects...")
            compare(clearButton.item.Accessible.name, "Clear")
            compare(clearButton.item.Accessible.role, Accessible.Button)
        }
    }
}
