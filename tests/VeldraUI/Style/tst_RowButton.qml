// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest

import VeldraUI.Style

Item {
    id: window

    property int presses: 0
    property int pins: 0

    width: 400
    height: 300

    RowButton {
        id: row

        width: 300
        text: "web-production"
        onClicked: window.presses += 1

        contentItem: StyledText { text: row.text }
        menu: ContextMenu {
            id: menu

            MenuEntry { id: pin; text: "Pin"; onTriggered: window.pins += 1 }
            MenuEntry { text: "Other" }
        }
    }

    RowButton {
        id: bare

        y: 100
        width: 300
        contentItem: StyledText { text: "without a menu" }
    }

    TestCase {
        name: "RowButton"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            window.presses = 0
            window.pins = 0
            row.current = false
        }

        function cleanup() {
            menu.close()
            tryVerify(() => !menu.visible)
        }

        function test_isPressedAnywhereInItsRectangle() {
            for (const point of [Qt.point(1, 1), Qt.point(299, 1), Qt.point(299, row.height - 1)])
                mouseClick(row, point.x, point.y)
            compare(window.presses, 3)
        }

        function test_isPressedByKeyboardAndAssistiveTechnology() {
            row.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Return)
            keyClick(Qt.Key_Space)
            row.Accessible.pressAction()
            compare(window.presses, 3)
        }

        function test_leavesEightAndFourPointsAroundItsContent() {
            compare(row.contentItem.x, 8)
            compare(row.contentItem.y, 4)
            compare(row.contentItem.width, row.width - 16)
            compare(row.height, row.contentItem.implicitHeight + 8)
        }

        function test_isTintedWhileItIsCurrent() {
            verify(Qt.colorEqual(row.background.color, "transparent"))
            row.current = true
            verify(Qt.colorEqual(row.background.color, Qt.alpha(row.Theme.colors.accent, 0.08)))
            compare(row.background.radius, 4)
            verify(row.Accessible.selected)
        }

        function test_aSecondaryClickOpensTheMenuAndDoesNotPress() {
            mouseClick(row, 100, 10, Qt.RightButton)
            tryVerify(() => menu.opened)
            compare(window.presses, 0)
        }

        function test_theMenuOpensWhereTheClickWas() {
            mouseClick(row, 100, 10, Qt.RightButton)
            tryVerify(() => menu.opened)
            const place = menu.contentItem.mapToItem(row, 0, 0)
            compare(place.x, 100 + menu.padding)
            compare(place.y, 10 + menu.padding)
        }

        function test_theKeyboardOpensTheMenu_data() {
            return [{ tag: "menu key", key: Qt.Key_Menu, modifiers: Qt.NoModifier },
                    { tag: "Shift+F10", key: Qt.Key_F10, modifiers: Qt.ShiftModifier }]
        }
        function test_theKeyboardOpensTheMenu(data) {
            row.forceActiveFocus(Qt.TabFocusReason)
            keyClick(data.key, data.modifiers)
            tryVerify(() => menu.opened)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(window.pins, 1)
            tryVerify(() => !menu.visible)
        }

        function test_choosingAnEntryTriggersItAndClosesTheMenu() {
            mouseClick(row, 100, 10, Qt.RightButton)
            tryVerify(() => menu.opened)
            mouseClick(pin)
            compare(window.pins, 1)
            tryVerify(() => !menu.visible)
        }

        function test_assistiveTechnologyChoosesAnEntry() {
            mouseClick(row, 100, 10, Qt.RightButton)
            tryVerify(() => menu.opened)
            compare(pin.Accessible.role, Accessible.MenuItem)
            compare(pin.Accessible.name, "Pin")
            pin.Accessible.pressAction()
            compare(window.pins, 1)
            tryVerify(() => !menu.visible)
        }

        function test_escapeClosesTheMenu() {
            mouseClick(row, 100, 10, Qt.RightButton)
            tryVerify(() => menu.opened)
            keyClick(Qt.Key_Escape)
            tryVerify(() => !menu.visible)
            compare(window.pins, 0)
        }

        function test_withoutAMenuASecondaryClickDoesNothing() {
            mouseClick(bare, 100, 10, Qt.RightButton)
            bare.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Menu)
            verify(!menu.visible)
        }
    }
}
