// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest

import VeldraUI.Style

Item {
    id: window

    property int presses: 0

    width: 400
    height: 300

    RowButton {
        id: row

        width: 300
        text: "web-production"
        onClicked: window.presses += 1

        contentItem: StyledText { text: row.text }
    }

    TestCase {
        name: "RowButton"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            window.presses = 0
            row.current = false
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

        function test_showsARingOnlyWhereTheKeyboardIs() {
            row.forceActiveFocus(Qt.MouseFocusReason)
            compare(row.background.border.width, 0)
            window.forceActiveFocus()
            row.forceActiveFocus(Qt.TabFocusReason)
            compare(row.background.border.width, 2)
            verify(Qt.colorEqual(row.background.border.color, row.Theme.colors.focusRing))
        }

        function test_aSecondaryClickDoesNotPress() {
            mouseClick(row, 100, 10, Qt.RightButton)
            compare(window.presses, 0)
        }
    }
}
