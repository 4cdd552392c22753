// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

Item {
    width: 400
    height: 200

    Component {
        id: viewComponent

        ADCStatusView {
            width: 376
        }
    }

    ViewTest {
        id: test

        name: "ADCStatusView"
        view: viewComponent

        function test_header() {
            show()

            compare(find("header").title, "Application Default Credentials")
            compare(text("header/title"), "APPLICATION DEFAULT CREDENTIALS")
            compare(find("header").icon, "key")
        }

        function test_kinds_data() {
            return [
                { tag: "user", type: "authorized_user", symbol: "person.badge.key",
                  description: "User credentials" },
                { tag: "key", type: "service_account", symbol: "key.fill",
                  description: "Service account key" },
                { tag: "impersonated", type: "impersonated_service_account", symbol: "bolt.badge.a",
                  description: "Impersonated service account" },
            ]
        }

        function test_kinds(data) {
            world.setADC(data.type)
            show()

            compare(find("status/symbol").name, data.symbol)
            compare(find("status/symbol").color, colors.green)
            compare(text("description"), data.description)
            verify(isShown("badge"))
            verify(!isShown("quota"))
        }

        function test_noneHasAPlainKeyAndNoBadge() {
            show()

            compare(find("status/symbol").name, "key")
            compare(find("status/symbol").color, colors.secondary)
            compare(text("description"), "Not configured")
            verify(!isShown("badge"))
            verify(!isShown("quota"))
        }

        function test_theBadge() {
            world.setADC("authorized_user")
            show()

            compare(text("badge"), "configured")
            compare(find("badge").icon, "checkmark")
            compare(find("badge").color, colors.green)
        }

        function test_theQuotaProjectStandsBelowTheKind_data() {
            return [{ tag: "set", quota: "p-1", text: "Quota: p-1" }, { tag: "empty", quota: "", text: "Quota: " },
                    { tag: "with a percent sign", quota: "%1", text: "Quota: %1" }]
        }

        function test_theQuotaProjectStandsBelowTheKind(data) {
            world.setADC("authorized_user", data.quota)
            show()

            verify(isShown("quota"))
            compare(text("quota"), data.text)
            compare(find("quota").textStyle, Typography.caption)
            compare(find("quota").color, colors.secondary)
            compare(gapBelow(find("description"), find("quota")), 1)
        }

        function test_measures() {
            world.setADC("authorized_user", "p-1")
            show()

            compare(gapBelow(find("header"), find("status")), 4 + 4)
            compare(placeOf(find("status")).x, 8)
            compare(find("status").width, 360)
            const symbol = placeOf(find("status/symbol"), find("status"))
            compare(symbol.x + symbol.width / 2, 7)
            compare(placeOf(find("description"), find("status")).x, 14 + 6)
            compare(find("description").textStyle, Typography.body)
            compare(insets(find("badge"), find("status"))[2], 0)
            compare(gapBelow(find("status"), find("loginButton")), 4 + 4)
            compare(placeOf(find("loginButton")).x, 8)
            compare(gapAfter(find("loginButton"), find("quotaButton")), 8)
        }

        function test_buttons() {
            show()

            compare(text("loginButton"), "ADC Login")
            compare(text("quotaButton"), "Set Quota Project")
            for (const name of ["loginButton", "quotaButton"]) {
                compare(find(name).textStyle, Typography.callout)
                verify(find(name).small)
                verify(find(name) instanceof BorderedButton)
                verify(find(name).enabled)
            }
        }

        function test_loginSignsIn() {
            show()
            world.expect("applicationDefaultLogin")
            press("loginButton")
            world.setADC("authorized_user")
            world.finish()

            compare(text("description"), "User credentials")
        }

        function test_aFailedLoginIsTheLastError() {
            show()
            world.expect("applicationDefaultLogin")
            press("loginButton")
            world.fail("cancelled")

            compare(world.stateManager.errorMessage, "gcloud command failed (exit 1): cancelled")
        }

        function test_theActiveProjectBecomesTheQuotaProject() {
            world.configure({ project: "p-1" })
            world.setADC("authorized_user")
            show()
            world.expect("setQuotaProject", "p-1")
            press("quotaButton")
            world.setADC("authorized_user", "p-1")
            world.finish()

            compare(text("quota"), "Quota: p-1")
        }

        function test_withoutAnActiveProjectThePressDoesNothing() {
            show()
            press("quotaButton")

            compare(world.commands, 0)
            verify(!world.stateManager.hasError)
        }

        function test_aLongQuotaProjectIsShortened() {
            world.setADC("authorized_user", "p".repeat(90))
            show()

            verify(find("quota").truncated)
            compare(gapAfter(find("quota"), find("badge")), 12)
            mouseMove(find("quota"))
            tryVerify(() => find("quota").toolTipShown)
        }

        function test_theKeyboardReachesBothButtons() {
            show()
            keyClick(Qt.Key_Tab)
            verify(find("loginButton").visualFocus)
            keyClick(Qt.Key_Tab)
            verify(find("quotaButton").visualFocus)
        }

        function middleOf(item: Item): real {
            const place = placeOf(item)
            return place.y + place.height / 2
        }

        function test_partsOfTheStatusStandInItsMiddle() {
            world.setADC("authorized_user", "p-1")
            show()

            for (const part of ["status/symbol", "badge"])
                fuzzyCompare(middleOf(find(part)), middleOf(find("status")), 0.5, part)
            const kind = placeOf(find("description")), quota = placeOf(find("quota"))
            fuzzyCompare((kind.y + quota.y + quota.height) / 2, middleOf(find("status")), 0.5)
            compare(find("status/symbol").size, Typography.callout.pixelSize)
            fuzzyCompare(middleOf(find("loginButton")), middleOf(find("quotaButton")), 0.5)
        }

        function test_assistiveTechnologyReadsTheStatusAndPressesTheButtons() {
            world.configure({ project: "p-1" })
            world.setADC("authorized_user", "p-1")
            show()

            compare(find("description").Accessible.name, "User credentials")
            compare(find("quota").Accessible.name, "Quota: p-1")
            compare(find("badge/text").Accessible.name, "configured")
            world.expect("setQuotaProject", "p-1")
            find("quotaButton").Accessible.pressAction()
            world.settle()
            world.fail("")
        }
    }
}
