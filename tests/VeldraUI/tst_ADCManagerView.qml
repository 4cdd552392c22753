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

        ADCManagerView {
            width: 600
            height: 400
        }
    }

    ViewTest {
        id: test

        name: "ADCManagerView"
        view: viewComponent

        function test_types_data() {
            return [
                { tag: "authorized_user", text: "User Credentials (authorized_user)" },
                { tag: "service_account", text: "Service Account Key" },
                { tag: "impersonated_service_account", text: "Impersonated Service Account" },
                { tag: "none", text: "Not Configured" },
            ]
        }

        function test_types(row) {
            world.setADC(row.tag)
            show()

            compare(text("type/label"), "Type:")
            compare(text("type/value"), row.text)
        }

        function test_valid_data() {
            return [{ tag: "Yes", isValid: true }, { tag: "No", isValid: false }]
        }

        function test_valid(row) {
            world.setADC("authorized_user", null, null, row.isValid)
            show()

            compare(text("valid/label"), "Valid:")
            compare(text("valid/value"), row.tag)
        }

        function test_withoutAFileThereIsTypeAndValidityOnly() {
            show()

            compare(text("type/value"), "Not Configured")
            compare(text("valid/value"), "No")
            verify(!isShown("clientEmail"))
            verify(!isShown("quotaProject"))
        }

        function test_emailAndQuotaProjectAreShownWhereThereIsOne() {
            world.setADC("service_account", "billing", "robot@p1")
            show()

            verify(isShown("clientEmail") && isShown("quotaProject"))
            compare(text("clientEmail/label"), "Client Email:")
            compare(text("clientEmail/value"), "robot@p1")
            compare(text("quotaProject/label"), "Quota Project:")
            compare(text("quotaProject/value"), "billing")
            const tops = ["type", "valid", "clientEmail", "quotaProject"].map(name => placeOf(find(name)).y)
            compare(tops, tops.slice().sort((a, b) => a - b))
        }

        function test_followsTheContext() {
            show()
            world.setADC("authorized_user", "q")

            compare(text("type/value"), "User Credentials (authorized_user)")
            compare(text("valid/value"), "Yes")
            verify(isShown("quotaProject") && !isShown("clientEmail"))
        }

        function test_measures() {
            world.signIn("a@x", "p1")
            world.setADC("service_account", "billing", "robot@p1")
            show()
            const stack = find("stack")

            compare(insets(find("status"), stack).slice(0, 3), [16, 16, 16])
            compare(insets(find("actions"), stack).slice(2), [16, 16])
            compare(gapBelow(find("status"), find("actions")), 16)
            compare(find("status").padding, 8)
            compare(find("actions").padding, 8)
            for (const name of ["type", "valid", "clientEmail", "quotaProject"]) {
                compare(placeOf(find(name)).x, 16 + 8)
                compare(placeOf(find(name + "/label"), find(name)).x, 0)
                compare(find(name + "/label").width, 120)
                compare(placeOf(find(name + "/value"), find(name)).x, 120)
                compare(find(name + "/label").textStyle, Typography.callout)
                compare(find(name + "/label").weight, Font.Medium)
                compare(find(name + "/value").textStyle, Typography.callout)
                compare(find(name + "/value").color, colors.secondary)
            }
            compare(insets(find("quotaRow"), find("actions"))[3], 8)
            compare(gapBelow(find("loginButton"), find("useActiveButton")), 12)
            compare(gapBelow(find("useActiveButton"), find("quotaRow")), 12)
            for (const name of ["loginButton", "useActiveButton", "quotaField"])
                compare(placeOf(find(name)).x, 16 + 8, name)
            verify(gapAfter(find("quotaField"), find("setButton")) === 8)
        }

        function test_titlesAndButtons() {
            world.signIn("a@x", "p1")
            show()

            compare(find("status").title, "Current ADC Status")
            compare(find("actions").title, "Actions")
            compare(text("loginButton"), "Run ADC Login (opens browser)")
            verify(find("loginButton") instanceof ProminentButton)
            compare(text("useActiveButton"), "Use Active Project as Quota Project")
            verify(find("useActiveButton") instanceof BorderedButton)
            compare(text("setButton"), "Set Quota Project")
            compare(text("quotaField/placeholder"), "Quota project ID")
            compare(shown.quotaProjectInput, "")
        }

        function test_theLoginButtonLogsIn() {
            show()
            world.expect("applicationDefaultLogin")
            press("loginButton")
            verify(find("loginButton").enabled)
            world.setADC("authorized_user")
            world.finish()

            compare(text("type/value"), "User Credentials (authorized_user)")
        }

        function test_withoutAnActiveProjectTheButtonForItIsAbsent() {
            show()
            verify(!isShown("useActiveButton"))
            compare(gapBelow(find("loginButton"), find("quotaRow")), 12)

            world.signIn("a@x", "p1")
            verify(isShown("useActiveButton"))
        }

        function test_theActiveProjectBecomesTheQuotaProject() {
            world.signIn("a@x", "p1")
            show()
            world.expect("setQuotaProject", "p1")
            press("useActiveButton")
            world.setADC("authorized_user", "p1")
            world.finish()

            compare(text("quotaProject/value"), "p1")
        }

        function test_theTypedQuotaProjectIsPassedAsItIsAndStays() {
            show()
            mouseClick(find("quotaField"))
            for (const key of [Qt.Key_Space, Qt.Key_Q, Qt.Key_Space])
                keyClick(key)
            compare(shown.quotaProjectInput, " q ")
            world.expect("setQuotaProject", " q ")
            press("setButton")
            world.finish()

            compare(text("quotaField"), " q ")
            compare(shown.quotaProjectInput, " q ")
        }

        function test_anEmptyQuotaProjectIsPassedToo() {
            show()
            verify(find("setButton").enabled)
            world.expect("setQuotaProject", "")
            press("setButton")
            world.finish()
        }

        function test_returnInTheFieldSetsTheQuotaProject() {
            show()
            mouseClick(find("quotaField"))
            keyClick(Qt.Key_Q)
            world.expect("setQuotaProject", "q")
            keyClick(Qt.Key_Return)
            world.settle()
            world.finish()
        }

        function test_aFailureChangesNothingHere() {
            world.signIn("a@x", "p1")
            show()
            world.expect("setQuotaProject", "p1")
            press("useActiveButton")
            world.fail("denied")

            verify(world.stateManager.hasError)
            verify(!isShown("quotaProject"))
            verify(find("useActiveButton").enabled)
        }

        function test_nothingIsDisabledWhileAnOperationRuns() {
            world.signIn("a@x", "p1")
            show()
            world.expect("applicationDefaultLogin")
            press("loginButton")
            for (const name of ["loginButton", "useActiveButton", "setButton", "quotaField"])
                verify(find(name).enabled, name)
            world.finish()
        }

        function test_everyControlIsReachedByTheTabKey() {
            world.signIn("a@x", "p1")
            show()
            for (const name of ["loginButton", "useActiveButton", "quotaField", "setButton"]) {
                keyClick(Qt.Key_Tab)
                verify(find(name).activeFocus, name)
            }
            world.expect("setQuotaProject", "")
            keyClick(Qt.Key_Space)
            world.settle()
            world.finish()
        }

        function test_longValuesAreShortenedAndToldInAToolTip() {
            const email = "e".repeat(200) + "@example.com"
            world.setADC("service_account", "q".repeat(200), email)
            show({ width: 480 })

            for (const name of ["clientEmail/value", "quotaProject/value"]) {
                verify(find(name).truncated, name)
                const place = placeOf(find(name), find("status"))
                verify(place.x + place.width <= find("status").width - 8, name)
            }
            mouseMove(find("clientEmail/value"))
            tryVerify(() => find("clientEmail/value").toolTipShown)
        }

        function test_aLowWindowScrolls() {
            world.signIn("a@x", "p1")
            world.setADC("service_account", "billing", "robot@p1")
            show({ width: 480, height: 200 })
            verify(shown.scrolls)
            for (let i = 0; i < 4; ++i)
                keyClick(Qt.Key_Tab)
            const place = placeOf(find("setButton"))

            verify(place.y >= 0 && place.y + place.height <= 200)
        }

        function test_assistiveTechnologyReadsBoxesAndFacts() {
            show()

            compare(find("status").Accessible.role, Accessible.Grouping)
            compare(find("status").Accessible.name, "Current ADC Status")
            compare(find("type/value").Accessible.name, "Not Configured")
            compare(find("quotaField").Accessible.name, "Quota project ID")
            compare(find("loginButton").Accessible.role, Accessible.Button)
        }

        function test_theFieldIsBoundToTheInput() {
            show({ quotaProjectInput: "before" })
            compare(text("quotaField"), "before")
            mouseClick(find("quotaField"))
            keyClick(Qt.Key_End)
            keyClick(Qt.Key_1)
            compare(shown.quotaProjectInput, "before1")
            shown.quotaProjectInput = "after"

            compare(text("quotaField"), "after")
            verify(find("quotaField").framed)
        }

        function test_theFieldStandsInTheMiddleOfItsRow() {
            show()
            const field = placeOf(find("quotaField")), button = placeOf(find("setButton"))

            fuzzyCompare(field.y + field.height / 2, button.y + button.height / 2, 0.5)
        }

        function test_assistiveTechnologyReadsEachFactWithItsLabel() {
            show()

            compare(find("type/label").Accessible.name, "Type:")
            compare(find("type/value").Accessible.role, Accessible.StaticText)
            for (const [name, text] of [["loginButton", "Run ADC Login (opens browser)"], ["setButton", "Set Quota Project"]]) {
                compare(find(name).Accessible.role, Accessible.Button)
                compare(find(name).Accessible.name, text)
            }
        }

        function drawnTexts(item: Item): var {
            const texts = item instanceof Text && item.visible ? [item.text] : []
            for (let index = 0; index < item.children.length; ++index)
                texts.push(...drawnTexts(item.children[index]))
            return texts
        }

        function test_theTitlesOfTheBoxesAreDrawn() {
            show()

            verify(drawnTexts(find("status")).includes("Current ADC Status"))
            verify(drawnTexts(find("actions")).includes("Actions"))
        }
    }
}
