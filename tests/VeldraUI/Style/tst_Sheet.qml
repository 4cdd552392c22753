// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI.Style

Item {
    id: window

    property int presses: 0

    width: 400
    height: 300

    BorderedButton {
        id: behind

        text: "Behind"
        onClicked: window.presses += 1
    }

    Sheet {
        id: sheet

        title: "New Configuration"

        Column {
            RoundedField { id: field; placeholderText: "Configuration name"; focus: true }
            BorderedButton { id: cancel; text: "Cancel"; onClicked: sheet.close() }
        }
    }

    TestCase {
        name: "Sheet"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            window.presses = 0
        }

        function cleanup() {
            sheet.close()
            tryVerify(() => !sheet.visible)
        }

        function open() {
            sheet.open()
            tryVerify(() => sheet.opened)
        }

        function test_takesTheKeyboardToItsField() {
            open()
            verify(field.activeFocus)
        }

        function test_keepsTheMouseFromWhatIsBehind() {
            open()
            mouseClick(behind)
            compare(window.presses, 0)
            verify(sheet.visible)
        }

        function test_keepsTheTabKeyInside() {
            open()
            for (let i = 0; i < 5; ++i) {
                keyClick(Qt.Key_Tab)
                verify(field.activeFocus || cancel.activeFocus)
            }
        }

        function test_closesOnEscape() {
            open()
            keyClick(Qt.Key_Escape)
            tryVerify(() => !sheet.visible)
        }

        function test_givesTheKeyboardBack() {
            behind.forceActiveFocus(Qt.TabFocusReason)
            open()
            mouseClick(cancel)
            tryVerify(() => !sheet.visible)
            verify(behind.activeFocus)
        }

        function test_standsInTheMiddleTwentyPointsAroundItsContent() {
            open()
            compare(sheet.x, Math.round((window.width - sheet.width) / 2))
            compare(sheet.width, sheet.contentItem.childrenRect.width + 40)
            compare(sheet.height, sheet.contentItem.childrenRect.height + 40)
        }

        function test_isADialogForAssistiveTechnology() {
            open()
            compare(sheet.contentItem.Accessible.role, Accessible.Dialog)
            compare(sheet.contentItem.Accessible.name, "New Configuration")
        }
    }
}
