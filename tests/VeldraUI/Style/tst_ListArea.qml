// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest

import VeldraUI.Style

// ListArea with ActionRow and RowAction.
Item {
    id: window

    property list<string> presses

    width: 300
    height: 240

    ListModel {
        id: model
    }

    BorderedButton {
        id: before

        text: "Before"
    }

    ListArea {
        id: list

        y: 40
        width: 300
        height: 160
        label: "Things"
        model: model

        delegate: ActionRow {
            id: row

            required property string name

            objectName: name
            text: name
            details: "details"

            contentItem: Item {
                implicitHeight: 32

                RowAction {
                    objectName: "first"
                    row: row
                    text: "First"
                    onClicked: window.presses.push("first " + row.name)
                }

                RowAction {
                    objectName: "second"
                    x: 100
                    row: row
                    text: "Second"
                    onClicked: window.presses.push("second " + row.name)
                }
            }
        }
    }

    BorderedButton {
        id: after

        y: 205
        text: "After"
    }

    TestCase {
        name: "ListArea"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            window.presses = []
            model.clear()
            for (let number = 0; number < 30; ++number)
                model.append({ name: "row " + number })
            waitForRendering(list)
            list.currentIndex = 0
            list.positionViewAtBeginning()
            before.forceActiveFocus(Qt.TabFocusReason)
        }

        function rowAt(index: int): ActionRow {
            return list.itemAtIndex(index) as ActionRow
        }

        function action(index: int, place: int): RowAction {
            return rowAt(index).contentItem.children[place] as RowAction
        }

        function test_theTabKeyGoesThroughTheCurrentRowOnly() {
            for (const stop of [rowAt(0), action(0, 0), action(0, 1), after]) {
                keyClick(Qt.Key_Tab)
                verify(stop.visualFocus, stop.text)
            }
            for (const stop of [action(0, 1), action(0, 0), rowAt(0), before]) {
                keyClick(Qt.Key_Backtab)
                verify(stop.visualFocus, stop.text)
            }
        }

        function test_keysGoThroughTheRows_data() {
            return [
                { tag: "down", keys: [Qt.Key_Down], row: 1 },
                { tag: "up stops at the first", keys: [Qt.Key_Up], row: 0 },
                { tag: "down and up", keys: [Qt.Key_Down, Qt.Key_Down, Qt.Key_Up], row: 1 },
                { tag: "page down", keys: [Qt.Key_PageDown], row: 10 },
                { tag: "page up", keys: [Qt.Key_PageDown, Qt.Key_PageDown, Qt.Key_PageUp], row: 10 },
                { tag: "page up stops at the first", keys: [Qt.Key_Down, Qt.Key_PageUp], row: 0 },
                { tag: "end", keys: [Qt.Key_End], row: 29 },
                { tag: "page down stops at the last", keys: [Qt.Key_End, Qt.Key_PageDown], row: 29 },
                { tag: "down stops at the last", keys: [Qt.Key_End, Qt.Key_Down], row: 29 },
                { tag: "home", keys: [Qt.Key_End, Qt.Key_Home], row: 0 },
            ]
        }

        function test_keysGoThroughTheRows(data) {
            keyClick(Qt.Key_Tab)
            data.keys.forEach(key => keyClick(key))

            compare(list.currentIndex, data.row)
            verify(rowAt(data.row).visualFocus)
            const top = rowAt(data.row).mapToItem(list, 0, 0).y
            verify(top >= 0 && top + rowAt(data.row).height <= list.height)
        }

        function test_anArrowLeadsFromAButtonToTheNextRow() {
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Down)

            verify(rowAt(1).visualFocus)
        }

        function test_aClickOnAButtonPressesItAndLeavesTheKeyboard() {
            mouseClick(action(2, 1))

            compare(window.presses, ["second row 2"])
            verify(before.activeFocus)
        }

        function test_aClickOnARowMakesItCurrentWithoutAMark() {
            mouseClick(rowAt(2), 250, 10)
            compare(list.currentIndex, 2)
            verify(rowAt(2).activeFocus && !rowAt(2).visualFocus)
            keyClick(Qt.Key_Down)

            verify(rowAt(3).visualFocus)
        }

        function test_whenTheRowOfTheKeyboardGoesItsNeighbourHasIt() {
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Tab)
            verify(action(1, 0).visualFocus)
            model.remove(1)

            tryVerify(() => rowAt(1).text === "row 2" && rowAt(1).visualFocus)
        }

        function test_whenARowGoesTheKeyboardElsewhereStaysThere() {
            model.remove(0)
            waitForRendering(list)

            verify(before.activeFocus)
        }

        function test_theWheelStaysWithinTheRows() {
            mouseWheel(list, 150, 80, 0, -120)
            compare(list.contentY - list.originY, 60)
            mouseWheel(list, 150, 80, 0, 1200)
            compare(list.contentY, list.originY)
            for (let turn = 0; turn < 20; ++turn)
                mouseWheel(list, 150, 80, 0, -1200)
            fuzzyCompare(list.contentY, list.originY + list.contentHeight - list.height, 0.5)
        }

        function test_aListThatFitsDoesNotScroll() {
            model.clear()
            model.append({ name: "only" })
            waitForRendering(list)
            verify(!list.scrolls)
            mouseWheel(list, 150, 80, 0, -120)

            compare(list.contentY, list.originY)
        }

        function test_anEmptyListIsNoStop() {
            model.clear()
            waitForRendering(list)
            keyClick(Qt.Key_Tab)

            verify(after.visualFocus)
        }

        function test_onlyRowsOnScreenAreMade() {
            verify(rowAt(0) !== null)
            compare(list.itemAtIndex(29), null)
        }

        function test_assistiveTechnologyReadsListRowsAndButtons() {
            compare(list.Accessible.role, Accessible.List)
            compare(list.Accessible.name, "Things")
            compare(rowAt(1).Accessible.role, Accessible.ListItem)
            compare(rowAt(1).Accessible.name, "row 1")
            compare(rowAt(1).Accessible.description, "details, 2 of 30")
            compare(action(1, 0).Accessible.name, "First")
            compare(action(1, 0).Accessible.description, "row 1")
        }
    }
}
