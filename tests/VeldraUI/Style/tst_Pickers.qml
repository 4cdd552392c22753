// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest

import VeldraUI.Style

Item {
    id: window

    property int chosen: 0

    width: 400
    height: 300

    SegmentedPicker {
        id: segmented

        width: 301
        label: "Mode"
        model: ["ADC Only", "CLI Only", "Both"]
        small: true
        currentIndex: window.chosen
        onActivated: index => window.chosen = index
    }

    PopUpPicker {
        id: popUp

        property int activations: 0

        y: 60
        label: "Menubar Display"
        model: ["Icon only", "Icon + Project", "Icon + Project + Account"]
        onActivated: activations += 1
    }

    TestCase {
        name: "Pickers"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            window.chosen = 0
            popUp.currentIndex = 0
            popUp.activations = 0
            segmented.enabled = true
        }

        function cleanup() {
            popUp.popup.close()
            tryVerify(() => !popUp.popup.visible)
        }

        function segmentsIn(item) {
            let found = []
            for (let i = 0; i < item.children.length; ++i) {
                const child = item.children[i]
                if (child.Accessible.role === Accessible.RadioButton)
                    found.push(child)
                found = found.concat(segmentsIn(child))
            }
            return found
        }

        function test_aSegmentIsChosenByMouse() {
            mouseClick(segmentsIn(segmented)[1])
            compare(window.chosen, 1)
            verify(segmentsIn(segmented)[1].checked)
            verify(!segmentsIn(segmented)[0].checked)
        }

        function test_aSegmentIsChosenByTheArrowKeys() {
            segmentsIn(segmented)[0].forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            compare(window.chosen, 2)
            keyClick(Qt.Key_Left)
            compare(window.chosen, 1)
            verify(segmentsIn(segmented)[1].visualFocus)
        }

        function test_aSegmentIsChosenByAssistiveTechnology() {
            const segment = segmentsIn(segmented)[2]
            compare(segment.Accessible.name, "Both")
            segment.Accessible.pressAction()
            compare(window.chosen, 2)
            verify(segment.Accessible.checked)
        }

        function test_theSegmentsAreNamedAndAlikeInWidth() {
            const segments = segmentsIn(segmented)
            compare(segments.map(segment => segment.text), ["ADC Only", "CLI Only", "Both"])
            for (const segment of segments)
                verify(Math.abs(segment.width - segments[0].width) <= 1)
            const last = segments[2].mapToItem(segmented, segments[2].width, 0)
            fuzzyCompare(last.x, segmented.width, 0.5)
        }

        function test_whereThereIsLittleRoomEachSegmentHasItsOwnWidth() {
            const before = segmented.width
            const needed = segmentsIn(segmented).map(segment => Math.ceil(segment.implicitWidth))
            segmented.width = needed[0] + needed[1] + needed[2]
                            + (segmented.implicitWidth - 3 * Math.max(...needed))
            for (const segment of segmentsIn(segmented))
                verify(!segment.contentItem.truncated)
            segmented.width = before
        }

        function test_theSegmentsFollowTheirOwner() {
            window.chosen = 2
            verify(segmentsIn(segmented)[2].checked)
            mouseClick(segmentsIn(segmented)[0])
            window.chosen = 1
            verify(segmentsIn(segmented)[1].checked)
        }

        function test_aDisabledPickerDoesNotChange() {
            segmented.enabled = false
            mouseClick(segmentsIn(segmented)[1])
            segmentsIn(segmented)[1].Accessible.pressAction()
            compare(window.chosen, 0)
        }

        function test_theTabKeyStopsOnceAtTheSegments() {
            segmentsIn(segmented)[0].forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Tab)
            verify(popUp.activeFocus)
        }

        function test_aMenuEntryIsChosenByMouse() {
            mouseClick(popUp)
            tryVerify(() => popUp.popup.opened)
            mouseClick(popUp.popup.contentItem.itemAtIndex(2))
            compare(popUp.currentIndex, 2)
            compare(popUp.activations, 1)
        }

        function test_aMenuEntryIsChosenByKeyboard() {
            popUp.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Return)
            tryVerify(() => popUp.popup.opened)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(popUp.currentIndex, 1)
            compare(popUp.activations, 1)
            tryVerify(() => !popUp.popup.visible)
        }

        function test_aMenuEntryIsChosenByAssistiveTechnology() {
            popUp.Accessible.pressAction()
            tryVerify(() => popUp.popup.opened)
            const entry = popUp.popup.contentItem.itemAtIndex(1)
            compare(entry.Accessible.name, "Icon + Project")
            entry.Accessible.pressAction()
            compare(popUp.currentIndex, 1)
        }

        function test_theMenuShowsEveryTextInFull() {
            popUp.Accessible.pressAction()
            tryVerify(() => popUp.popup.opened)
            for (let i = 0; i < popUp.count; ++i)
                verify(!popUp.popup.contentItem.itemAtIndex(i).contentItem.truncated)
        }

        function test_theMenuShowsTheChosenTextAndIsNamed() {
            popUp.currentIndex = 2
            compare(popUp.displayText, "Icon + Project + Account")
            compare(popUp.contentItem.text, "Icon + Project + Account")
            compare(popUp.Accessible.role, Accessible.ComboBox)
            compare(popUp.Accessible.name, "Menubar Display")
            compare(popUp.Accessible.description, "Icon + Project + Account")
        }

        function test_theMenuIsWideEnoughForItsWidestText() {
            popUp.currentIndex = 2
            verify(!popUp.contentItem.truncated)
        }
    }
}
