// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI
import VeldraUI.Style

Item {
    width: 600
    height: 400

    Component {
        id: viewComponent

        AboutView {
            property AuthState stateManager

            width: 600
            height: 400
        }
    }

    ViewTest {
        id: test

        name: "AboutView"
        view: viewComponent

        function test_iconNameDescriptionAndLinkStandBelowEachOtherInTheMiddle() {
            show()
            const names = ["icon", "name", "description", "link"]
            compare(find("stack").children.length, names.length)
            let bottom = 0
            for (const name of names) {
                const place = placeOf(find(name))
                verify(place.y >= bottom, name)
                compare(place.x + place.width / 2, 300, name)
                bottom = place.y + place.height
            }
        }

        function test_theIconIsNinetySixPointsLarge() {
            show()

            compare(find("icon").width, 96)
            compare(find("icon").height, 96)
            compare(find("icon").Accessible.role, Accessible.Graphic)
        }

        function test_theIconIsThatOfTheApplication() {
            show()
            const picture = grabImage(shown)
            const place = placeOf(find("icon"))

            // The one colour of the test program's icon.
            for (const by of [1, 48, 94])
                compare(picture.pixel(place.x + by, place.y + by), "#0080ff")
        }

        function test_texts() {
            show()

            compare(text("name"), "Torvi")
            compare(find("name").textStyle, Typography.title)
            compare(find("name").weight, Font.Bold)
            compare(text("description"), "Google Cloud authentication manager for macOS")
            compare(find("description").textStyle, Typography.body)
            compare(find("description").color, colors.secondary)
            compare(text("link"), "torvi.example")
            compare(find("link").textStyle, Typography.callout)
            compare(find("link").Accessible.role, Accessible.Link)
        }

        function test_theLinkOpensTheAddress() {
            show()
            press("link")

            compare(world.visited, ["https://torvi.example"])
        }

        function test_theLinkOpensByTheKeyboard() {
            show()
            keyClick(Qt.Key_Tab)
            verify(find("link").visualFocus)
            keyClick(Qt.Key_Return)

            compare(world.visited, ["https://torvi.example"])
        }

        function test_tellsTheVersionAtTheBottom() {
            show()

            compare(text("version"), "Version 1.2.3")
            compare(find("version").textStyle, Typography.caption)
            verify(placeOf(find("version")).y > placeOf(find("stack")).y + find("stack").height)
        }

        function test_textsAreCentred() {
            show({ width: 300 })

            for (const name of ["name", "description"])
                compare(find(name).horizontalAlignment, Text.AlignHCenter, name)
            verify(find("description").lineCount > 1)
            for (const name of ["description", "version"]) {
                const place = placeOf(find(name))
                fuzzyCompare(place.x + place.width / 2, 150, 0.5, name)
            }
        }

        function test_assistiveTechnologyReadsThePage() {
            show()

            compare(find("icon").Accessible.name, "Torvi icon")
            compare(find("name").Accessible.role, Accessible.Heading)
            compare(find("description").Accessible.name, "Google Cloud authentication manager for macOS")
        }
    }
}
