// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest

import VeldraUI.Style

// What holds for every button.
Item {
    id: window

    property int presses: 0

    width: 400
    height: 300

    Column {
        x: 40
        y: 40
        spacing: 20

        PlainButton { id: plain; text: "Quit"; symbolName: "power"; onClicked: window.presses += 1 }
        BorderedButton { id: bordered; text: "Clear"; onClicked: window.presses += 1 }
        BorderedButton { id: small; text: "Clear"; small: true; onClicked: window.presses += 1 }
        BorderedButton { id: trash; symbolName: "trash"; destructive: true; small: true; help: "Delete" }
        ProminentButton { id: prominent; text: "Create"; onClicked: window.presses += 1 }
        LinkButton { id: link; text: "torvi.example"; onClicked: window.presses += 1 }
    }

    TestCase {
        name: "Buttons"
        when: windowShown

        readonly property var buttons: [plain, bordered, small, prominent, link]

        function init() {
            failOnWarning(/.?/)
            window.presses = 0
            window.forceActiveFocus()
            for (const button of buttons)
                button.enabled = true
        }

        function all_data() {
            return [{ tag: "plain", button: plain }, { tag: "bordered", button: bordered },
                    { tag: "small", button: small }, { tag: "prominent", button: prominent },
                    { tag: "link", button: link }]
        }

        function test_pressesByMouse_data() { return all_data() }
        function test_pressesByMouse(data) {
            mouseClick(data.button)
            compare(window.presses, 1)
        }

        function test_pressesByKeyboard_data() { return all_data() }
        function test_pressesByKeyboard(data) {
            data.button.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Space)
            keyClick(Qt.Key_Return)
            keyClick(Qt.Key_Enter)
            compare(window.presses, 3)
        }

        function test_pressesForAssistiveTechnology_data() { return all_data() }
        function test_pressesForAssistiveTechnology(data) {
            data.button.Accessible.pressAction()
            compare(window.presses, 1)
            compare(data.button.Accessible.name, data.button.text)
        }

        function test_doesNothingWhileDisabled_data() { return all_data() }
        function test_doesNothingWhileDisabled(data) {
            data.button.enabled = false
            mouseClick(data.button)
            data.button.Accessible.pressAction()
            compare(window.presses, 0)
            verify(data.button.Accessible.description.endsWith("unavailable"))
        }

        function test_showsTheRingForTheKeyboardOnly_data() { return all_data() }
        function test_showsTheRingForTheKeyboardOnly(data) {
            mouseClick(data.button)
            verify(!data.button.visualFocus)
            window.forceActiveFocus()
            data.button.forceActiveFocus(Qt.TabFocusReason)
            verify(data.button.visualFocus)
        }

        function test_isReachedByTab() {
            plain.forceActiveFocus(Qt.TabFocusReason)
            for (const next of [bordered, small, trash, prominent, link]) {
                keyClick(Qt.Key_Tab)
                verify(next.activeFocus)
            }
        }

        function test_rolesForAssistiveTechnology() {
            compare(plain.Accessible.role, Accessible.Button)
            compare(bordered.Accessible.role, Accessible.Button)
            compare(prominent.Accessible.role, Accessible.Button)
            compare(link.Accessible.role, Accessible.Link)
        }

        function test_aPlainButtonIsAsLargeAsItsLabel() {
            compare(plain.width, plain.contentItem.implicitWidth)
            compare(plain.height, plain.contentItem.implicitHeight)
        }

        function test_aPlainButtonTakesPressesWhereItShowsItself() {
            mouseClick(plain, -3, -3)
            compare(window.presses, 1)
            mouseClick(plain, -6, -6)
            compare(window.presses, 1)
        }

        function test_aSmallButtonIsLowerThanAnOrdinaryOne() {
            compare(small.height, 22)
            compare(bordered.height, 26)
            compare(prominent.height, 26)
        }

        function test_aButtonWithoutTextIsNamedByItsHelp() {
            compare(trash.Accessible.name, "Delete")
            compare(bordered.Accessible.name, "Clear")
        }

        function test_tellsItsHelpUnderThePointerAndToTheKeyboard() {
            const tip = findChild(trash, "helpTip")
            mouseMove(trash, 5, 5)
            tryVerify(() => tip.visibleNow)
            mouseMove(window, 399, 299)
            tryVerify(() => !tip.visibleNow)
            trash.forceActiveFocus(Qt.TabFocusReason)
            tryVerify(() => tip.visibleNow)
        }

        function test_aButtonWithoutHelpHasNoToolTip() {
            mouseMove(bordered, 5, 5)
            verify(bordered.hovered)
            verify(!findChild(bordered, "helpTip").active)
        }

        function test_aDestructiveButtonIsRed() {
            verify(Qt.colorEqual(trash.foreground, window.Theme.colors.red))
        }
    }
}
