// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

Item {
    width: 400
    height: 300

    Component {
        id: viewComponent

        ActiveContextView {
            width: 376
        }
    }

    ViewTest {
        id: test

        name: "ActiveContextView"
        view: viewComponent

        function row(name: string): var {
            const item = find(name)
            return { symbol: find("symbol", item).name, label: text("label", item),
                     value: text("value", item), shown: item.visible }
        }

        function test_emptyContextShowsNoneTwiceAndNoImpersonation() {
            show()

            compare(text("title"), "Active Context")
            compare(row("project"), { symbol: "folder.fill", label: "Project", value: "None", shown: true })
            compare(row("account"), { symbol: "person.fill", label: "Account", value: "None", shown: true })
            compare(row("adc"), { symbol: "key.fill", label: "ADC", value: "Not configured", shown: true })
            verify(!isShown("impersonating"))
            verify(!find("copyButton").enabled)
        }

        function test_showsIdOfTheProjectAndEmailOfTheAccount() {
            world.signIn("ada@example.com", "p-1")
            world.list(["p-1"])
            show()

            compare(row("project").value, "p-1")
            compare(row("account").value, "ada@example.com")
            verify(find("copyButton").enabled)
        }

        function test_aProjectSetToNothingIsNotNone() {
            world.configure({ project: "" })
            show()

            compare(row("project").value, "")
        }

        function test_followsTheContext() {
            world.signIn("ada@example.com", "p-1")
            show()
            world.configure({ project: "p-2", account: null })

            compare(row("project").value, "p-2")
            compare(row("account").value, "None")
        }

        function test_impersonationIsTheHighlightedFourthRow() {
            world.configure({ impersonate: "robot@p-1.iam.gserviceaccount.com" })
            show()

            compare(row("impersonating"), { symbol: "bolt.fill", label: "Impersonating",
                                            value: "robot@p-1.iam.gserviceaccount.com", shown: true })
            for (const part of ["symbol", "value"])
                compare(find("impersonating/" + part).color, colors.orange)
            compare(find("impersonating/label").color, colors.secondary)
            verify(find("account").y < find("impersonating").y)
            verify(find("impersonating").y < find("adc").y)
        }

        function test_otherRowsAreNotHighlighted() {
            world.configure({ impersonate: "robot@p-1.iam.gserviceaccount.com" })
            show()

            for (const name of ["project", "account", "adc"]) {
                compare(find(name + "/symbol").color, colors.secondary)
                compare(find(name + "/label").color, colors.secondary)
                compare(find(name + "/value").color, colors.primary)
            }
        }

        function test_adcKinds_data() {
            return [
                { tag: "user", type: "authorized_user", value: "User credentials" },
                { tag: "key", type: "service_account", value: "Service account key" },
                { tag: "impersonated", type: "impersonated_service_account", value: "Impersonated SA" },
                { tag: "none", type: "none", value: "Not configured" },
            ]
        }

        function test_adcKinds(data) {
            world.setADC(data.type)
            show()

            compare(row("adc").value, data.value)
        }

        function test_longValuesAreShortenedInTheMiddleAndToldInAToolTip() {
            const email = "a".repeat(60) + "@example.com"
            world.signIn(email, "p".repeat(80))
            show()

            const value = find("account/value")
            verify(value.truncated)
            compare(value.elide, Text.ElideMiddle)
            compare(value.lineCount, 1)
            verify(!value.toolTipShown)
            mouseMove(value)
            tryVerify(() => value.toolTipShown)
            verify(find("project/value").truncated)
        }

        function test_measures() {
            world.configure({ impersonate: "robot@p-1" })
            show()

            compare(shown.radius, 8)
            compare(shown.color, colors.material)
            compare(insets(find("title"), shown).slice(0, 2), [10, 10])
            compare(insets(find("copyRow"), shown).slice(3), [10])
            compare(gapBelow(find("title"), find("rows")), 6)
            compare(gapBelow(find("project"), find("account")), 4)
            compare(gapBelow(find("account"), find("impersonating")), 4)
            compare(gapBelow(find("impersonating"), find("adc")), 4)
            compare(gapBelow(find("rows"), find("divider")), 6)
            compare(gapBelow(find("divider"), find("copyRow")), 6)
            compare(find("divider").width, 356)

            const label = find("project/label")
            compare(placeOf(label).x, 10 + 14 + 6)
            compare(label.width, 90)
            compare(placeOf(find("project/value")).x, 10 + 14 + 6 + 90 + 6)
            const symbol = placeOf(find("project/symbol"))
            compare(symbol.x + symbol.width / 2, 10 + 7)
        }

        function test_textStyles() {
            show()

            compare(find("title").textStyle, Typography.callout)
            compare(find("title").weight, Font.DemiBold)
            compare(find("title").color, colors.secondary)
            compare(find("project/label").textStyle, Typography.callout)
            compare(find("project/value").textStyle, Typography.callout)
            compare(find("project/value").weight, Font.Medium)
            compare(find("copyButton").textStyle, Typography.callout)
        }

        function copyState(): var {
            const button = find("copyButton")
            return [button.text, button.symbolName, button.enabled, isShown("progress")]
        }

        readonly property var idle: ["Copy Identity Token", "doc.on.clipboard", true, false]

        function test_copyingATokenConfirmsForOneAndAHalfSeconds() {
            world.signIn("ada@example.com")
            show()
            compare(copyState(), idle)

            world.expect("printIdentityToken")
            press("copyButton")
            compare(copyState(), ["Copy Identity Token", "doc.on.clipboard", false, true])

            world.finish(" token\n")
            compare(copyState(), ["Copied!", "checkmark", false, true])
            compare(world.clipboard, ["secret token"])

            world.advance(1499)
            compare(copyState(), ["Copied!", "checkmark", false, true])
            world.advance(1)
            compare(copyState(), idle)
        }

        function test_theProgressIndicatorStandsAfterTheButton() {
            world.signIn("ada@example.com")
            world.expect("printIdentityToken")
            show()
            press("copyButton")

            tryVerify(() => gapAfter(find("copyButton"), find("progress")) === 8)
            verify(find("progress").small)
            world.finish("token")
        }

        function test_theCardKeepsItsHeightWhileATokenComes() {
            world.signIn("ada@example.com")
            world.expect("printIdentityToken")
            show()
            const before = shown.implicitHeight
            press("copyButton")

            tryVerify(() => find("progress").visible)
            tryCompare(shown, "implicitHeight", before)
            world.finish("token")
            compare(shown.implicitHeight, before)
        }

        function test_aFailedCopyIsTheLastErrorAndFreesTheButtonAtOnce() {
            world.signIn("ada@example.com")
            world.expect("printIdentityToken")
            show()
            press("copyButton")
            world.fail("no credentials")

            compare(copyState(), idle)
            compare(world.stateManager.errorMessage, "gcloud command failed (exit 1): no credentials")
            compare(world.clipboard, [])
        }

        function test_anyOtherFailureIsShownInItsOwnWords() {
            world.signIn("ada@example.com")
            world.expect("printIdentityToken")
            show()
            press("copyButton")
            world.failOddly("out of luck")

            compare(world.stateManager.errorMessage, "out of luck")
            compare(copyState(), idle)
        }

        function test_aViewThatGoesWhileATokenComesHarmsNobody() {
            world.signIn("ada@example.com")
            world.expect("printIdentityToken")
            show()
            press("copyButton")
            shown.destroy()
            wait(0)

            world.finish("token")
            world.advance(2000)
            compare(world.clipboard, ["secret token"])
        }

        function test_keyboardCopies() {
            world.signIn("ada@example.com")
            world.expect("printIdentityToken")
            show()
            keyClick(Qt.Key_Tab)
            verify(find("copyButton").visualFocus)
            keyClick(Qt.Key_Return)
            world.settle()
            world.finish("token")

            compare(world.clipboard, ["secret token"])
        }

        function middleOf(item: Item): real {
            const place = placeOf(item)
            return place.y + place.height / 2
        }

        function test_partsOfARowStandInItsMiddle() {
            world.signIn("ada@example.com")
            world.expect("printIdentityToken")
            show()
            press("copyButton")
            tryVerify(() => find("progress").width > 0)

            for (const part of ["symbol", "label", "value"])
                fuzzyCompare(middleOf(find("project/" + part)), middleOf(find("project")), 0.5, part)
            for (const part of ["copyButton", "progress"])
                fuzzyCompare(middleOf(find(part)), middleOf(find("copyRow")), 0.5, part)
            compare(find("project/symbol").size, Typography.callout.pixelSize)
            world.finish("token")
        }

        function test_assistiveTechnologyReadsTheCardAsAGroup() {
            show()

            compare(shown.Accessible.role, Accessible.Grouping)
            compare(shown.Accessible.name, "Active Context")
            compare(find("title").Accessible.role, Accessible.Heading)
        }
    }
}
