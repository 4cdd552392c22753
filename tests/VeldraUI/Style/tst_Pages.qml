// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI.Style

// TabBar, GroupedForm with its parts, GroupBox, EmptyState.
Item {
    id: window

    width: 600
    height: 500

    TabBar {
        id: tabs

        width: 600

        TabItem { id: first; text: "Settings"; symbolName: "gear" }
        TabItem { id: second; text: "About"; symbolName: "info.circle" }
    }

    GroupedForm {
        id: form

        y: 60
        width: 600
        height: 200

        FormSection {
            id: section

            title: "General"

            FormRow { id: firstRow; Toggle { id: toggle; width: parent.width; text: "Launch at Login" } }
            FormRow { id: secondRow; label: "Menubar Display"; PopUpPicker { id: picker; model: ["Icon only"] } }
        }
    }

    GroupBox {
        id: box

        y: 280
        x: 16
        width: 568
        title: "Actions"
        inset: 8

        Column {
            id: content

            StyledText { text: "inside" }
        }
    }

    EmptyState {
        id: empty

        y: 380
        width: 600
        symbolName: "folder"
        title: "Select a Project"
        description: "Choose a project to manage its service accounts"
    }

    TestCase {
        name: "Pages"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            tabs.currentIndex = 0
        }

        function placeIn(item: Item, outer: Item): rect {
            return item.mapToItem(outer, 0, 0, item.width, item.height)
        }

        function test_aTabIsChosenByMouse() {
            mouseClick(second)
            compare(tabs.currentIndex, 1)
            verify(second.checked)
            verify(!first.checked)
        }

        function test_aTabIsChosenByKeyboard() {
            first.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Right)
            compare(tabs.currentIndex, 1)
            keyClick(Qt.Key_Left)
            compare(tabs.currentIndex, 0)
        }

        function test_aTabIsChosenByAssistiveTechnology() {
            compare(second.Accessible.role, Accessible.PageTab)
            compare(second.Accessible.name, "About")
            second.Accessible.pressAction()
            compare(tabs.currentIndex, 1)
            verify(second.Accessible.selected)
            verify(!first.Accessible.selected)

            second.Accessible.pressAction() // leaves it chosen
            verify(second.Accessible.selected)
        }

        function test_theTabsStandInTheMiddle() {
            const left = placeIn(first, window).left
            const right = placeIn(second, window).right
            fuzzyCompare(left, window.width - right, 1.5)
        }

        function test_aRowWithALabelPutsItsControlRight() {
            compare(placeIn(picker, secondRow).right, secondRow.width - 12)
            compare(placeIn(picker, secondRow).top, secondRow.height - placeIn(picker, secondRow).bottom)
        }

        function test_aRowWithoutALabelGivesItsChildTheWholeWidth() {
            compare(placeIn(toggle, firstRow).left, 12)
            compare(placeIn(toggle, firstRow).right, firstRow.width - 12)
        }

        function test_theRowsOfASectionStandBelowEachOther() {
            compare(secondRow.y, firstRow.height)
            compare(section.Accessible.role, Accessible.Grouping)
            compare(section.Accessible.name, "General")
        }

        function test_aGroupBoxLeavesItsInsetAroundItsContent() {
            compare(placeIn(content, box).left, 8)
            compare(box.height - box.headingHeight, content.implicitHeight + 16)
            compare(box.Accessible.name, "Actions")
        }

        function test_anEmptyStateCentresWhatItSays() {
            const symbol = findChild(empty, "symbol")
            fuzzyCompare(placeIn(symbol, empty).x + symbol.width / 2, empty.width / 2, 0.5)
            compare(symbol.name, "folder")
            compare(findChild(empty, "title").text, "Select a Project")
            compare(findChild(empty, "description").text, "Choose a project to manage its service accounts")
        }
    }
}
