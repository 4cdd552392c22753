// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI.Style

// What moves, and that it stands still when nobody sees it.
Item {
    id: window

    width: 200
    height: 200

    Item {
        id: holder

        ProgressIndicator {
            id: progress

            small: true
        }

        PlainButton {
            id: button

            y: 40
            text: "Refresh"
            symbolName: "arrow.clockwise"
        }
    }

    Window {
        id: other

        width: 50
        height: 50

        ProgressIndicator {
            id: elsewhere
        }
    }

    TestCase {
        name: "Motion"
        when: windowShown

        // What replaces a symbol is made by the first replacement.
        function isReplacing(): bool {
            const replacement = findChild(button, "replacing")
            return replacement !== null && replacement.running
        }

        function init() {
            failOnWarning(/.?/)
            holder.visible = true
            progress.running = true
            button.symbolName = "arrow.clockwise"
            tryVerify(() => !isReplacing())
        }

        function test_anIndicatorTurnsWhileItIsSeen() {
            verify(progress.turning)
            const symbol = findChild(progress, "symbol")
            const before = symbol.rotation
            tryVerify(() => symbol.rotation !== before)
        }

        function test_anIndicatorStandsStillWhileItIsHidden() {
            holder.visible = false
            verify(!progress.turning)
        }

        function test_anIndicatorStandsStillWhileNothingRuns() {
            progress.running = false
            verify(!progress.turning)
        }

        function test_anIndicatorStandsStillWhileItsWindowIsHidden() {
            verify(!elsewhere.turning)
            other.show()
            tryVerify(() => elsewhere.turning)
            other.hide()
            tryVerify(() => !elsewhere.turning)
        }

        function test_anIndicatorHasItsSize() {
            compare(progress.width, 16)
            compare(elsewhere.width, 28)
            compare(progress.Accessible.role, Accessible.ProgressBar)
        }

        function test_aChangedSymbolIsReplacedInMotion() {
            button.symbolName = "checkmark"
            verify(isReplacing())
            compare(findChild(button, "current").name, "checkmark")
            compare(findChild(button, "previous").name, "arrow.clockwise")
            tryVerify(() => !isReplacing())
            compare(findChild(button, "current").opacity, 1)
            verify(!findChild(button, "previous").visible)
        }

        function test_aHiddenSymbolChangesWithoutMotion() {
            holder.visible = false
            button.symbolName = "checkmark"
            verify(!isReplacing())
            compare(findChild(button, "current").name, "checkmark")
        }
    }
}
