// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

Item {
    width: 400
    height: 500

    Component {
        id: viewComponent

        ImpersonationView {
            width: 376
        }
    }

    ViewTest {
        id: test

        readonly property string robot: "robot@p-1.iam.gserviceaccount.com"

        name: "ImpersonationView"
        view: viewComponent

        // Who is shown as impersonated: [cli, adc], each an e-mail or nothing.
        function impersonated(): var {
            return ["cli", "adc"].map(kind => isShown(kind) ? text(kind + "/email") : null)
        }

        function test_header() {
            show()

            compare(find("header").title, "Service Account Impersonation")
            compare(text("header/title"), "SERVICE ACCOUNT IMPERSONATION")
            compare(find("header").icon, "bolt")
        }

        function test_withoutImpersonationItSaysSo() {
            show()

            verify(isShown("empty"))
            compare(text("empty"), "No active impersonation")
            compare(find("empty").textStyle, Typography.callout)
            compare(find("empty").color, colors.secondary)
            compare(find("empty").x, 8)
            verify(!isShown("active"))
        }

        function test_whoIsImpersonated_data() {
            return [
                { tag: "by CLI", cli: "c@x", type: "authorized_user", email: null, shown: ["c@x", null] },
                { tag: "by ADC", cli: null, type: "impersonated_service_account", email: "a@x",
                  shown: [null, "a@x"] },
                { tag: "by both", cli: "c@x", type: "impersonated_service_account", email: "a@x",
                  shown: ["c@x", "a@x"] },
                { tag: "ADC without e-mail", cli: null, type: "impersonated_service_account", email: null,
                  shown: [null, null] },
                { tag: "key with e-mail", cli: null, type: "service_account", email: "a@x",
                  shown: [null, null] },
                { tag: "CLI and ADC without e-mail", cli: "c@x", type: "impersonated_service_account",
                  email: null, shown: ["c@x", null] },
            ]
        }

        function test_whoIsImpersonated(data) {
            world.configure({ impersonate: data.cli })
            world.setADC(data.type, null, data.email)
            show()

            compare(impersonated(), data.shown)
            compare(isShown("empty"), data.cli === null && data.shown[1] === null)
            compare(isShown("active"), !isShown("empty"))
        }

        function showBoth() {
            world.configure({ impersonate: "c@x" })
            world.setADC("impersonated_service_account", null, "a@x")
            show()
        }

        function test_rowsOfBothKinds() {
            showBoth()

            compare(find("cli/symbol").name, "terminal.fill")
            compare(find("adc/symbol").name, "key.fill")
            verify(find("cli").y < find("adc").y)
            for (const [kind, label] of [["cli", "CLI"], ["adc", "ADC"]]) {
                compare(find(kind + "/symbol").color, colors.orange)
                compare(text(kind + "/kind"), label)
                compare(find(kind + "/kind").textStyle, Typography.caption)
                compare(find(kind + "/kind").color, colors.secondary)
                compare(find(kind + "/email").textStyle, Typography.body)
                compare(text(kind + "/clearButton"), "Clear")
                compare(find(kind + "/clearButton").textStyle, Typography.callout)
                verify(find(kind + "/clearButton").small)
                verify(find(kind + "/clearButton") instanceof BorderedButton)
            }
        }

        function test_clearEndsOnlyItsOwnSide_data() {
            return [{ tag: "cli", command: "clearImpersonation" }, { tag: "adc", command: "revokeADC" }]
        }

        function test_clearEndsOnlyItsOwnSide(data) {
            showBoth()
            world.expect(data.command)
            press(data.tag + "/clearButton")
            world.fail("still there")

            compare(world.stateManager.errorMessage, "gcloud command failed (exit 1): still there")
            compare(impersonated(), ["c@x", "a@x"])
        }

        function test_aClearedSideGoes() {
            showBoth()
            world.expect("clearImpersonation")
            press("cli/clearButton")
            world.configure({ impersonate: null })
            world.finish()

            compare(impersonated(), [null, "a@x"])
        }

        function test_measuresOfTheActiveBlock() {
            showBoth()

            compare(gapBelow(find("header"), find("active")), 4)
            compare(placeOf(find("cli"), find("active")).x, 8)
            compare(placeOf(find("cli"), find("active")).y, 4)
            compare(find("cli").width, 360)
            compare(gapBelow(find("cli"), find("adc")), 4)
            compare(insets(find("adc"), find("active"))[3], 4)
            compare(gapAfter(find("cli/symbol"), find("cli/email")), 6)
            compare(gapBelow(find("cli/email"), find("cli/kind")), 1)
            compare(insets(find("cli/clearButton"), find("cli"))[2], 0)
        }

        function test_longEmailsAreShortened() {
            const email = "e".repeat(90) + "@x"
            world.configure({ impersonate: email })
            world.setADC("impersonated_service_account", null, email)
            show()

            for (const kind of ["cli", "adc"]) {
                verify(find(kind + "/email").truncated)
                compare(gapAfter(find(kind + "/email"), find(kind + "/clearButton")), 12)
                compare(find(kind + "/email").elide, Text.ElideMiddle)
            }
        }

        function test_thePickerStartsOnADCOnlyAndOffersAllModes() {
            show()

            const picker = find("modePicker")
            compare(picker.label, "Mode")
            compare(picker.model, ["ADC Only", "CLI Only", "Both"])
            compare(picker.currentIndex, 0)
            verify(picker.small)
            compare(placeOf(picker).x, 8)
            compare(picker.width, 360)
            compare(gapBelow(find("empty"), picker), 4 + 2)
        }

        function test_thePickerChooses() {
            show()
            find("modePicker").activated(2)

            compare(find("modePicker").currentIndex, 2)
            compare(shown.selectedMode, AuthState.Both)
        }

        function test_savedAccountsAreThoseOfTheActiveProject() {
            world.saveAccount("p-1", "a@p-1", "Deployer")
            world.saveAccount("p-1", "b@p-1")
            world.saveAccount("p-2", "c@p-2")
            world.configure({ project: "p-1" })
            show()

            verify(isShown("savedTitle"))
            compare(text("savedTitle"), "Quick Impersonate")
            compare(find("savedTitle").textStyle, Typography.caption)
            compare(find("savedTitle").color, colors.tertiary)
            compare(text("rows/a@p-1/text"), "Deployer")
            compare(text("rows/b@p-1/text"), "b@p-1")
            compare(find("rows/c@p-2"), null)

            world.configure({ project: "p-2" })
            compare(find("rows/a@p-1"), null)
            compare(text("rows/c@p-2/text"), "c@p-2")
        }

        function test_withoutAnActiveProjectNothingIsSaved() {
            world.saveAccount("p-1", "a@p-1")
            show()

            verify(!isShown("savedTitle"))
            verify(!isShown("rows"))
            compare(gapBelow(find("modePicker"), find("emailField")), 4 + 4)
        }

        function test_withoutAnActiveProjectTheListIsThatOfTheEmptyId() {
            world.saveAccount("", "odd@x")
            show()

            verify(isShown("savedTitle"))
            verify(find("rows/odd@x"))
        }

        function test_measuresOfTheSavedAccounts() {
            world.saveAccount("p-1", "a@p-1")
            world.saveAccount("p-1", "b@p-1")
            world.configure({ project: "p-1" })
            show()

            compare(placeOf(find("savedTitle")).x, 8)
            compare(gapBelow(find("modePicker"), find("savedTitle")), 4 + 2)
            compare(gapBelow(find("savedTitle"), find("rows/a@p-1")), 4)
            compare(gapBelow(find("rows/a@p-1"), find("rows/b@p-1")), 4)
            compare(find("rows/a@p-1").width, 376)
            compare(find("rows/a@p-1/text").textStyle, Typography.body)
            compare(insets(find("rows/a@p-1/text"), find("rows/a@p-1")).slice(0, 2), [8, 3])
            compare(insets(find("rows/a@p-1/text"), find("rows/a@p-1"))[3], 3)
        }

        function test_aSavedAccountIsImpersonatedInTheChosenMode_data() {
            return [
                { tag: "ADC Only", mode: 0, commands: ["adcLoginWithImpersonation"] },
                { tag: "CLI Only", mode: 1, commands: ["setImpersonation"] },
                { tag: "Both", mode: 2, commands: ["setImpersonation", "adcLoginWithImpersonation"] },
            ]
        }

        function test_aSavedAccountIsImpersonatedInTheChosenMode(data) {
            world.saveAccount("p-1", robot, "Deployer")
            world.configure({ project: "p-1" })
            show({ selectedMode: data.mode })
            for (const command of data.commands)
                world.expect(command, robot)
            press("rows/" + robot)
            for (const command of data.commands)
                world.finish()

            verify(!world.stateManager.hasError)
        }

        function type(text: string) {
            find("emailField").forceActiveFocus()
            for (const character of text)
                keyClick(character)
        }

        function test_theEmailRow() {
            show()

            const field = find("emailField"), button = find("goButton")
            compare(field.placeholderText, "SA email")
            compare(field.textStyle, Typography.callout)
            compare(button.text, "Go")
            compare(button.textStyle, Typography.callout)
            verify(button.small)
            compare(placeOf(field).x, 8)
            compare(gapAfter(field, button), 4)
            compare(placeOf(button).x + button.width, 368)
            const top = Math.min(placeOf(field).y, placeOf(button).y)
            compare(top - placeOf(find("modePicker")).y - find("modePicker").height, 4 + 4)
        }

        function test_goIsEnabledByAnyText() {
            show()
            verify(!find("goButton").enabled)
            type("a")
            verify(find("goButton").enabled)
            keyClick(Qt.Key_Backspace)
            verify(!find("goButton").enabled)
            type(" ")
            verify(find("goButton").enabled)
        }

        function test_goImpersonatesAndThenEmptiesTheField() {
            show()
            type("r@x")
            world.expect("adcLoginWithImpersonation", "r@x")
            press("goButton")
            compare(text("emailField"), "r@x")
            world.finish()

            compare(text("emailField"), "")
            compare(shown.newSAEmail, "")
            verify(!find("goButton").enabled)
        }

        function test_returnImpersonatesWithoutTheSpacesAroundTheText() {
            show({ selectedMode: AuthState.CLIOnly })
            type("  r@x ")
            world.expect("setImpersonation", "r@x")
            keyClick(Qt.Key_Return)
            world.settle()
            world.finish()

            compare(text("emailField"), "")
        }

        function test_aFailedStartEmptiesTheFieldToo() {
            show()
            type("r@x")
            world.expect("adcLoginWithImpersonation", "r@x")
            press("goButton")
            world.fail("no permission")

            compare(text("emailField"), "")
            compare(world.stateManager.errorMessage, "gcloud command failed (exit 1): no permission")
        }

        function test_spacesAloneDoNothing_data() {
            return [{ tag: "Go" }, { tag: "Return" }]
        }

        function test_spacesAloneDoNothing(data) {
            show()
            type("   ")
            if (data.tag === "Go")
                press("goButton")
            else
                keyClick(Qt.Key_Return)
            world.settle()

            compare(text("emailField"), "   ")
            compare(world.commands, 0)
        }

        function test_anEmptyFieldIsNotSubmittedByReturn() {
            show()
            find("emailField").forceActiveFocus()
            keyClick(Qt.Key_Return)
            world.settle()

            compare(world.commands, 0)
        }

        function test_aViewThatGoesWhileASignInRunsHarmsNobody() {
            show()
            type("r@x")
            world.expect("adcLoginWithImpersonation", "r@x")
            press("goButton")
            shown.destroy()
            wait(0)
            world.finish()

            verify(!world.stateManager.hasError)
        }

        function test_assistiveTechnologyKnowsWhatClearClears() {
            showBoth()

            compare(find("cli/clearButton").Accessible.name, "Clear")
            compare(find("cli/clearButton").Accessible.description, "CLI impersonation of c@x")
            compare(find("adc/clearButton").Accessible.description, "ADC impersonation of a@x")
        }

        function test_assistiveTechnologyReadsSavedAccountsWithTheirPlace() {
            world.saveAccount("p-1", "a@p-1", "Deployer")
            world.saveAccount("p-1", "b@p-1")
            world.configure({ project: "p-1" })
            show()

            compare(find("rows/a@p-1").Accessible.name, "Deployer")
            compare(find("rows/a@p-1").Accessible.description, "a@p-1, 1 of 2")
            compare(find("rows/b@p-1").Accessible.description, "2 of 2")
        }

        function middleOf(item: Item): real {
            const place = placeOf(item)
            return place.y + place.height / 2
        }

        function test_partsOfARowStandInItsMiddle() {
            world.saveAccount("p-1", "a@p-1")
            world.configure({ project: "p-1", impersonate: "c@x" })
            world.setADC("impersonated_service_account", null, "a@x")
            show()

            for (const kind of ["cli", "adc"]) {
                const row = find(kind)
                for (const part of ["symbol", "clearButton"])
                    fuzzyCompare(middleOf(find(part, row)), middleOf(row), 0.5, part)
                const email = placeOf(find("email", row)), word = placeOf(find("kind", row))
                fuzzyCompare((email.y + word.y + word.height) / 2, middleOf(row), 0.5)
                compare(find("symbol", row).size, Typography.callout.pixelSize)
            }
            fuzzyCompare(middleOf(find("rows/a@p-1/text")), middleOf(find("rows/a@p-1")), 0.5)
            fuzzyCompare(middleOf(find("emailField")), middleOf(find("goButton")), 0.5)
        }

        function test_theFieldHasARoundedBorder() {
            show()

            verify(find("emailField").framed)
            verify(find("goButton") instanceof BorderedButton)
        }

        function test_savedAccountsAreShownInFull() {
            const email = "e".repeat(90) + "@x"
            world.saveAccount("p-1", email)
            world.configure({ project: "p-1" })
            show()
            verify(find("rows/" + email + "/text").truncated)
            shown.rows.focusRow(0)

            tryVerify(() => find("rows/" + email + "/text").toolTipShown)
        }

        function test_aModeIsChosenByTheMouse() {
            show()
            const picker = find("modePicker")
            mouseClick(picker, picker.width - 5, picker.height / 2)

            compare(shown.selectedMode, AuthState.Both)
            compare(picker.currentIndex, 2)
        }
    }
}
