// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest

import VeldraUI
import VeldraUI.Style

Item {
    id: window

    width: 400
    height: 500

    ErrorBanner {
        id: banner

        property int dismissals: 0
        property int retries: 0

        width: 376
        onDismiss: dismissals += 1
        onRetry: retries += 1
    }

    TestCase {
        id: testCase

        readonly property Symbol symbol: findChild(banner, "symbol")
        readonly property Item area: findChild(banner, "text")
        readonly property Item message: findChild(banner, "message")
        readonly property Item retryButton: findChild(banner, "retryButton")
        readonly property Item dismissButton: findChild(banner, "dismissButton")

        name: "ErrorBanner"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            banner.error = "gcloud exited with code 1: no such project"
            banner.retryable = false
            banner.dismissals = 0
            banner.retries = 0
            window.forceActiveFocus()
        }

        function place(item: Item): rect {
            return item.mapToItem(banner, 0, 0, item.width, item.height)
        }

        function traceback(): string {
            const lines = ["ERROR: gcloud crashed (KeyError): 'project'"]
            for (let i = 1; i < 45; ++i)
                lines.push("  File \"core/module_" + i + ".py\", line " + i + ", in _Run")
            return lines.join("\n")
        }

        function test_withoutRetryThereIsNoRetryButton() {
            verify(!retryButton.visible)
            verify(dismissButton.visible)
        }

        function test_withRetryItsButtonStandsBetweenMessageAndDismissButton() {
            banner.retryable = true
            verify(retryButton.visible)
            compare(retryButton.text, "Retry")
            verify(place(message).right <= place(retryButton).left)
            verify(place(retryButton).right <= place(dismissButton).left)
        }

        function test_showsTheErrorsMessage() {
            compare(message.text, "gcloud exited with code 1: no such project")
        }

        function test_saysSomethingWhenTheErrorHasNoMessage() {
            banner.error = ""
            compare(message.text, "An error occurred")
        }

        function test_leavesEightPointsOnAllSides() {
            banner.retryable = true
            compare(place(symbol).left, 8)
            compare(place(dismissButton).right, banner.width - 8)
            const top = Math.min(place(symbol).top, place(area).top, place(retryButton).top, place(dismissButton).top)
            const bottom = Math.max(place(symbol).bottom, place(area).bottom, place(retryButton).bottom, place(dismissButton).bottom)
            compare(top, 8)
            compare(bottom, banner.height - 8)
        }

        function test_putsItsPartsEightPointsApart() {
            banner.retryable = true
            compare(place(message).left - place(symbol).right, 8)
            compare(place(retryButton).left - place(message).right, 8)
            compare(place(dismissButton).left - place(retryButton).right, 8)
        }

        function test_givesTheMessageAllRemainingWidth() {
            compare(place(dismissButton).left - place(message).right, 8)
            compare(message.horizontalAlignment, TextEdit.AlignLeft)
        }

        function test_centresItsPartsVertically() {
            banner.retryable = true
            banner.error = "one\ntwo\nthree\nfour"
            for (const part of [symbol, area, retryButton, dismissButton])
                fuzzyCompare(place(part).y + part.height / 2, banner.height / 2, 0.5)
        }

        function test_looksAsItShould() {
            compare(symbol.name, "exclamationmark.triangle.fill")
            compare(symbol.size, Typography.body.pixelSize)
            verify(Qt.colorEqual(symbol.color, banner.Theme.colors.yellow))
            compare(message.font.pixelSize, Typography.callout.pixelSize)
            verify(retryButton.small)
            compare(retryButton.textStyle.pixelSize, Typography.callout.pixelSize)
            compare(dismissButton.symbolName, "xmark")
            compare(dismissButton.textStyle.pixelSize, Typography.caption.pixelSize)
            verify(Qt.colorEqual(dismissButton.foreground, banner.Theme.colors.secondary))
            verify(Qt.colorEqual(banner.color, Qt.alpha(banner.Theme.colors.red, 0.1)))
            compare(banner.radius, 6)
        }

        function test_dismissesAtAPress() {
            mouseClick(dismissButton)
            compare(banner.dismissals, 1)
            compare(banner.retries, 0)
        }

        function test_dismissesByKey_data() {
            return [{ tag: "Return", key: Qt.Key_Return }, { tag: "Space", key: Qt.Key_Space }]
        }

        function test_dismissesByKey(data) {
            dismissButton.forceActiveFocus(Qt.TabFocusReason)
            keyClick(data.key)
            compare(banner.dismissals, 1)
        }

        function test_retriesAtAPress() {
            banner.retryable = true
            mouseClick(retryButton)
            compare(banner.retries, 1)
            compare(banner.dismissals, 0)
        }

        function test_retriesByKey() {
            banner.retryable = true
            retryButton.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Return)
            compare(banner.retries, 1)
        }

        function test_tellsAssistiveTechnologyAllOfIt() {
            banner.error = traceback()
            compare(banner.Accessible.role, Accessible.AlertMessage)
            compare(banner.Accessible.name, traceback())
            compare(dismissButton.Accessible.name, "Dismiss")
            compare(retryButton.Accessible.name, "Retry")
        }

        function test_keepsItsButtonsInReachUnderALongTraceback() {
            banner.retryable = true
            banner.error = traceback()
            verify(banner.height < 200)
            for (const button of [retryButton, dismissButton]) {
                verify(place(button).top >= 0)
                verify(place(button).bottom <= banner.height)
            }
            mouseClick(retryButton)
            mouseClick(dismissButton)
            compare(banner.retries, 1)
            compare(banner.dismissals, 1)
        }

        function test_scrollsALongTracebackToItsEnd() {
            banner.error = traceback()
            verify(area.scrolls)
            message.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_End)
            compare(area.contentY + area.height, message.height)
            keyClick(Qt.Key_Home)
            compare(area.contentY, 0)
            mouseWheel(area, 20, 20, 0, -120)
            verify(area.contentY > 0)
        }

        function test_showsWholeLinesOfALongTraceback() {
            banner.error = traceback()
            const lineHeight = message.contentHeight / message.lineCount
            fuzzyCompare(area.height % lineHeight, 0, 0.01)
        }

        function test_doesNotScrollAShortMessage() {
            verify(!area.scrolls)
            verify(!message.activeFocusOnTab)
        }

        function test_showsMarkupAsItIs() {
            banner.error = "<b>bold</b>"
            compare(message.text, "<b>bold</b>")
            compare(message.textFormat, TextEdit.PlainText)
        }

        function test_wrapsALongMessage() {
            banner.error = "could not reach the server ".repeat(8)
            verify(message.lineCount > 1)
            verify(message.contentWidth <= message.width)
            compare(area.height, message.height)
        }

        function test_isLegible() {
            verify(Qt.colorEqual(message.color, banner.Theme.colors.primary))
            verify(retryButton instanceof BorderedButton)
            verify(dismissButton instanceof PlainButton)
        }

        function test_tellsAssistiveTechnologyItsMessageAsText() {
            compare(message.Accessible.role, Accessible.StaticText)
            compare(message.Accessible.name, banner.error)
        }

        function test_marksTheMessageForTheKeyboardOnly_data() {
            return [{ tag: "Tab", reason: Qt.TabFocusReason, marked: true },
                    { tag: "Backtab", reason: Qt.BacktabFocusReason, marked: true },
                    { tag: "mouse", reason: Qt.MouseFocusReason, marked: false }]
        }

        function test_marksTheMessageForTheKeyboardOnly(data) {
            const mark = findChild(banner, "focusMark")
            banner.error = traceback()
            verify(!mark.visible)
            message.forceActiveFocus(data.reason)
            compare(mark.visible, data.marked)
        }
    }
}
