// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest

import VeldraUI.Style

Item {
    id: window

    property int pins: 0

    width: 400
    height: 300

    Item {
        id: row

        width: 300
        height: 30

        ContextMenu {
            id: menu

            MenuEntry { id: pin; text: "Pin"; onTriggered: window.pins += 1 }
            MenuEntry { text: "Other" }
        }
    }

    TestCase {
        name: "ContextMenu"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            window.pins = 0
            menu.popup(row, 100, 10)
            tryVerify(() => menu.opened)
        }

        function cleanup() {
            menu.close()
            tryVerify(() => !menu.visible)
        }

        function test_opensWhereItIsAskedFor() {
            const place = menu.contentItem.mapToItem(row, 0, 0)
            compare(place.x, 100 + menu.padding)
            compare(place.y, 10 + menu.padding)
        }

        function test_theKeyboardChoosesAnEntry() {
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(window.pins, 1)
            tryVerify(() => !menu.visible)
        }

        function test_choosingAnEntryTriggersItAndClosesTheMenu() {
            mouseClick(pin)
            compare(window.pins, 1)
            tryVerify(() => !menu.visible)
        }

        function test_assistiveTechnologyChoosesAnEntry() {
            compare(pin.Accessible.role, Accessible.MenuItem)
            compare(pin.Accessible.name, "Pin")
            pin.Accessible.pressAction()
            compare(window.pins, 1)
            tryVerify(() => !menu.visible)
        }

        function test_escapeClosesTheMenu() {
            keyClick(Qt.Key_Escape)
            tryVerify(() => !menu.visible)
            compare(window.pins, 0)
        }
    }
}
