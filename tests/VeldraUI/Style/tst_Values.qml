// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI.Style

// Toggle, Stepper, RoundedField.
Item {
    id: window

    width: 400
    height: 300

    Toggle {
        id: toggle

        property int changes: 0

        width: 200
        text: "Launch at Login"
        onToggled: changes += 1
    }

    Stepper {
        id: stepper

        property int changes: 0

        y: 60
        width: 200
        from: 1
        to: 60
        text: "Refresh interval: " + value + " min"
        onValueModified: changes += 1
    }

    RoundedField {
        id: field

        y: 120
        width: 120
        placeholderText: "SA email"
    }

    TestCase {
        name: "Values"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            toggle.checked = false
            toggle.enabled = true
            toggle.changes = 0
            stepper.value = 5
            stepper.changes = 0
            field.clear()
            window.forceActiveFocus()
        }

        function test_aToggleTurnsByEveryMeans() {
            mouseClick(toggle)
            verify(toggle.checked)
            toggle.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Space)
            verify(!toggle.checked)
            keyClick(Qt.Key_Return)
            verify(toggle.checked)
            toggle.Accessible.pressAction()
            verify(!toggle.checked)
            toggle.Accessible.toggleAction()
            verify(toggle.checked)
            compare(toggle.changes, 5)
        }

        function test_aDisabledToggleStays() {
            toggle.enabled = false
            mouseClick(toggle)
            toggle.Accessible.toggleAction()
            verify(!toggle.checked)
        }

        function test_aToggleSaysWhatItIs() {
            compare(toggle.Accessible.role, Accessible.CheckBox)
            compare(toggle.Accessible.name, "Launch at Login")
            verify(toggle.Accessible.checkable)
            toggle.checked = true
            verify(toggle.Accessible.checked)
        }

        function test_aStepperStepsByItsArrows() {
            mouseClick(stepper.up.indicator)
            compare(stepper.value, 6)
            mouseClick(stepper.down.indicator)
            mouseClick(stepper.down.indicator)
            compare(stepper.value, 4)
            compare(stepper.changes, 3)
        }

        function test_aStepperStepsByKeyboard() {
            stepper.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Up)
            compare(stepper.value, 6)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Down)
            compare(stepper.value, 4)
            compare(stepper.changes, 3)
        }

        function test_aStepperStepsForAssistiveTechnology() {
            compare(stepper.Accessible.role, Accessible.SpinBox)
            compare(stepper.Accessible.name, "Refresh interval: 5 min")
            stepper.Accessible.increaseAction()
            compare(stepper.value, 6)
            stepper.Accessible.decreaseAction()
            compare(stepper.value, 5)
            compare(stepper.changes, 2)
        }

        function test_aStepperStopsAtItsBounds_data() {
            return [{ tag: "lower", value: 1, key: Qt.Key_Down }, { tag: "upper", value: 60, key: Qt.Key_Up }]
        }
        function test_aStepperStopsAtItsBounds(data) {
            stepper.value = data.value
            stepper.forceActiveFocus(Qt.TabFocusReason)
            keyClick(data.key)
            mouseClick(data.value === 1 ? stepper.down.indicator : stepper.up.indicator)
            if (data.value === 1)
                stepper.Accessible.decreaseAction()
            else
                stepper.Accessible.increaseAction()
            compare(stepper.value, data.value)
            compare(stepper.changes, 0)
        }

        function test_aFieldIsWrittenIn() {
            mouseClick(field)
            keyClick("a")
            keyClick("b")
            compare(field.text, "ab")
        }

        function test_aFieldShowsItsPlaceholderOnlyWhileItIsEmpty() {
            const placeholder = findChild(field, "placeholder")
            verify(placeholder.visible)
            compare(placeholder.text, "SA email")
            field.text = " "
            verify(!placeholder.visible)
        }

        function test_aFieldShowsTheBeginningOfALongTextUntilItIsEdited() {
            field.text = "a-very-long-service-account@with-a-long-domain.example"
            verify(field.positionToRectangle(0).x >= 0)
            field.forceActiveFocus()
            verify(field.positionToRectangle(0).x < 0)
        }

        function test_aFieldShowsTheRingForTheKeyboardOnly() {
            mouseClick(field)
            verify(field.activeFocus)
            verify(!field.focusedByKeyboard)
            window.forceActiveFocus()
            field.forceActiveFocus(Qt.TabFocusReason)
            verify(field.focusedByKeyboard)
        }

        function test_aFieldSaysWhatItIs() {
            compare(field.Accessible.role, Accessible.EditableText)
            compare(field.Accessible.name, "SA email")
        }
    }
}
