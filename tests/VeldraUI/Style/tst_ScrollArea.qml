// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest

import VeldraUI.Style

Item {
    id: window

    property int lines: 30

    width: 300
    height: 200

    ScrollArea {
        id: area

        width: 300
        height: 200

        Column {
            width: area.width

            Repeater {
                id: repeater

                model: window.lines

                RowButton {
                    required property int index

                    width: parent.width
                    height: 24
                    text: "row " + index
                    contentItem: StyledText { text: "row" }
                }
            }
        }
    }

    TestCase {
        name: "ScrollArea"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            window.lines = 30
            tryCompare(area, "contentHeight", 720)
            area.contentY = 0
            window.forceActiveFocus()
        }

        function test_showsItsHandleOnlyWhenThereIsSomethingToScroll() {
            verify(area.scrolls)
            const handle = findChild(area, "scrollIndicator")
            verify(handle.visible)
            window.lines = 3
            tryVerify(() => !area.scrolls && !handle.visible)
        }

        function test_scrollsByTheWheelAndStopsAtItsEnds() {
            mouseWheel(area, 50, 50, 0, -120)
            compare(area.contentY, 60)
            mouseWheel(area, 50, 50, 0, 1200)
            compare(area.contentY, 0)
            mouseWheel(area, 50, 50, 0, -12000)
            compare(area.contentY, 520)
        }

        function test_scrollsByKeys_data() {
            return [{ tag: "Down", key: Qt.Key_Down, from: 0, to: 40 },
                    { tag: "Up", key: Qt.Key_Up, from: 100, to: 60 },
                    { tag: "Page Down", key: Qt.Key_PageDown, from: 0, to: 160 },
                    { tag: "Page Up", key: Qt.Key_PageUp, from: 200, to: 40 },
                    { tag: "End", key: Qt.Key_End, from: 0, to: 520 },
                    { tag: "Home", key: Qt.Key_Home, from: 300, to: 0 }]
        }
        function test_scrollsByKeys(data) {
            repeater.itemAt(0).forceActiveFocus(Qt.MouseFocusReason)
            area.contentY = data.from
            keyClick(data.key)
            compare(area.contentY, data.to)
        }

        function test_scrollsByTouch() {
            const touch = touchEvent(area)
            touch.press(0, area, 50, 150).commit()
            for (let y = 140; y >= 50; y -= 10)
                touch.move(0, area, 50, y).commit()
            touch.release(0, area, 50, 50).commit()
            verify(area.contentY > 50)
        }

        function test_aMouseThatMovesWhilePressedDoesNotScroll() {
            mouseDrag(area, 50, 150, 0, -100)
            compare(area.contentY, 0)
        }

        function test_bringsIntoViewWhatTheTabKeyReaches() {
            const row = repeater.itemAt(12)
            row.forceActiveFocus(Qt.TabFocusReason)
            verify(row.y + row.height <= area.contentY + area.height)
            repeater.itemAt(0).forceActiveFocus(Qt.BacktabFocusReason)
            compare(area.contentY, 0)
        }

        function test_staysWhenSomethingIsClicked() {
            area.contentY = 10
            mouseClick(area, 50, 2)
            compare(area.contentY, 10)
        }

        function test_comesBackWhenItsContentBecomesShort() {
            area.contentY = 520
            window.lines = 3
            tryCompare(area, "contentY", 0)
        }
    }
}
