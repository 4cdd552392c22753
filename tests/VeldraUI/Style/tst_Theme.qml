// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI.Style

Item {
    id: window

    width: 200
    height: 200

    Item {
        id: light

        Theme.dark: false

        StyledText { id: inside; text: "inside" }

        Item {
            id: again

            Theme.dark: true

            StyledText { id: innermost; text: "innermost" }
        }

        PopUpPicker { id: picker; model: ["one"] }
    }

    StyledText { id: outside; text: "outside" }

    Item { id: elsewhere }

    Component {
        id: late

        StyledText {}
    }

    TestCase {
        name: "Theme"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            light.Theme.dark = false
        }

        function cleanup() {
            Window.window.Theme.dark = undefined
            picker.popup.close()
        }

        function test_isDarkUnlessSomethingSaysOtherwise() {
            verify(outside.Theme.dark)
        }

        function test_holdsForEverythingInside() {
            verify(!inside.Theme.dark)
            verify(Qt.colorEqual(inside.color, light.Theme.colors.primary))
            verify(!Qt.colorEqual(inside.color, outside.color))
        }

        function test_isSetAgainFurtherInside() {
            verify(innermost.Theme.dark)
            verify(Qt.colorEqual(innermost.color, outside.color))
        }

        function test_changesWhatIsShownAtOnce() {
            light.Theme.dark = true
            verify(Qt.colorEqual(inside.color, outside.color))
        }

        function test_isGivenUpByResetting() {
            light.Theme.dark = undefined
            verify(inside.Theme.dark)
        }

        function test_aWindowsSettingHoldsForItsContent() {
            Window.window.Theme.dark = false
            verify(!outside.Theme.dark)
            verify(!inside.Theme.dark)
            verify(innermost.Theme.dark)
        }

        function test_reachesWhatIsMadeLater() {
            const made = createTemporaryObject(late, light, {})
            verify(!made.Theme.dark)
        }

        function test_changesWhenAnItemMovesElsewhere() {
            const made = createTemporaryObject(late, light, {})
            verify(!made.Theme.dark)
            made.parent = elsewhere
            verify(made.Theme.dark)
        }

        function test_aMenuLooksAsWhatItBelongsTo() {
            picker.popup.open()
            tryVerify(() => picker.popup.opened)
            verify(Qt.colorEqual(picker.popup.background.color, light.Theme.colors.popupBackground))
            verify(!picker.popup.contentItem.itemAtIndex(0).Theme.dark)
        }
    }
}
