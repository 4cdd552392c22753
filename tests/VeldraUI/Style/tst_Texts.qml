// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI.Style

Item {
    id: window

    width: 400
    height: 300

    RowButton {
        id: row

        y: 100
        width: 150
        contentItem: ElidedText {
            id: elided

            elide: Text.ElideMiddle
            text: "a-very-long-service-account@with-a-long-domain.example"
            revealed: row.visualFocus
        }
    }

    StyledText {
        id: styled

        text: "<b>plain</b>"
        textStyle: Typography.headline
    }

    TestCase {
        name: "Texts"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            elided.text = "a-very-long-service-account@with-a-long-domain.example"
            window.forceActiveFocus()
            mouseMove(window, 1, 299)
        }

        function test_aStyledTextTakesSizeAndWeightFromItsStyle() {
            compare(styled.font.pixelSize, Typography.headline.pixelSize)
            compare(styled.font.weight, Font.DemiBold)
            verify(Qt.colorEqual(styled.color, window.Theme.colors.primary))
        }

        function test_aStyledTextShowsMarkupAsItIs() {
            compare(styled.textFormat, Text.PlainText)
        }

        function test_aStyledTextIsReadByAssistiveTechnology() {
            compare(styled.Accessible.role, Accessible.StaticText)
            compare(styled.Accessible.name, styled.text)
        }

        function test_aShortenedTextTellsItselfUnderThePointer() {
            verify(elided.truncated)
            verify(!elided.toolTipShown)
            mouseMove(elided, 20, 5)
            tryVerify(() => elided.toolTipShown)
            verify(row.hovered)
            mouseMove(window, 1, 299)
            tryVerify(() => !elided.toolTipShown)
        }

        function test_aShortenedTextTellsItselfToTheKeyboard() {
            row.forceActiveFocus(Qt.TabFocusReason)
            tryVerify(() => elided.toolTipShown)
            window.forceActiveFocus()
            tryVerify(() => !elided.toolTipShown)
        }

        function test_aTextThatFitsHasNoToolTip() {
            elided.text = "short"
            row.forceActiveFocus(Qt.TabFocusReason)
            mouseMove(elided, 20, 5)
            wait(0)
            verify(!elided.truncated)
            verify(!elided.toolTipShown)
        }
    }
}
