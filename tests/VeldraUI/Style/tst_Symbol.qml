// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI.Style

Item {
    id: window

    width: 100
    height: 100

    Rectangle {
        anchors.fill: parent
        color: "white"
    }

    Symbol {
        id: symbol
    }

    SignalSpy {
        id: loaded

        target: symbol
        signalName: "sourceChanged"
    }

    TestCase {
        name: "Symbol"
        when: windowShown

        function init() {
            failOnWarning(/.?/)
            symbol.name = "folder.fill"
            symbol.size = 12
            symbol.color = "#3574e3"
        }

        function test_isALittleLargerThanItsTextAndEven_data() {
            return [{ tag: "caption", size: 11, side: 12 }, { tag: "callout", size: 12, side: 14 },
                    { tag: "body", size: 13, side: 14 }, { tag: "title", size: 22, side: 26 }]
        }
        function test_isALittleLargerThanItsTextAndEven(data) {
            symbol.size = data.size
            compare(symbol.width, data.side)
            compare(symbol.height, data.side)
        }

        // Run at more than one scale: a picture of the wrong size would be cut off or padded.
        function test_isDrawnForTheScreensScale() {
            symbol.size = 28
            compare(symbol.status, Image.Ready)
            compare(symbol.paintedWidth, symbol.width)
            compare(symbol.sourceSize.width, symbol.width)
        }

        function test_isOfItsColour() {
            symbol.size = 28
            waitForRendering(symbol)
            const picture = grabImage(window)
            const pixel = picture.pixel(symbol.width / 2, symbol.height / 2)
            verify(Qt.colorEqual(pixel, "#3574e3"), "" + pixel)
        }

        function test_showsNothingWithoutAName() {
            symbol.name = ""
            compare(symbol.source, "")
            compare(symbol.status, Image.Null)
        }
    }
}
