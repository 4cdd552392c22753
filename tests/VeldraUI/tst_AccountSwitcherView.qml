// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

Item {
    width: 400
    height: 400

    Component {
        id: viewComponent

        AccountSwitcherView {
            width: 376
        }
    }

    ViewTest {
        id: test

        readonly property string robot: "robot@p-1.iam.gserviceaccount.com"

        name: "AccountSwitcherView"
        view: viewComponent

        function test_headerAndRowsStandInTheOrderOfTheAccounts() {
            world.setAccounts(["b@x", robot, "a@x"])
            show()

            compare(text("header/title"), "ACCOUNTS")
            compare(find("header").title, "Accounts")
            compare(find("header").icon, "person.2")
            verify(find("b@x").y < find(robot).y && find(robot).y < find("a@x").y)
            verify(!isShown("empty"))
        }

        function test_anEmptyListSaysSo() {
            show()

            verify(isShown("empty"))
            compare(text("empty"), "No authenticated accounts")
            compare(find("empty").textStyle, Typography.callout)
            compare(find("empty").color, colors.secondary)
            compare(find("empty").x, 8)
            verify(!isShown("rows"))
        }

        function test_serviceAccountsHaveAGearAndUsersAPerson() {
            world.setAccounts(["a@x", robot])
            show()

            compare(find("a@x/symbol").name, "person.fill")
            compare(find(robot + "/symbol").name, "gearshape.fill")
            compare(find(robot + "/symbol").color, colors.secondary)
        }

        function test_onlyActiveAccountsAreTintedAndMarked() {
            world.setAccounts(["a@x", "b@x"])
            world.signIn("b@x")
            show()

            verify(!find("a@x").current && !isShown("a@x/badge"))
            verify(find("b@x").current && isShown("b@x/badge"))
            compare(text("b@x/badge"), "active")
            compare(find("b@x/badge").color, colors.green)
            compare(find("b@x").background.radius, 4)
            compare(find("b@x").background.color, Qt.alpha(colors.accent, 0.08))
            compare(find("a@x").background.color, Qt.color("transparent"))

            world.signIn("a@x")
            verify(find("a@x").current && isShown("a@x/badge"))
            verify(!find("b@x").current && !isShown("b@x/badge"))
        }

        function test_aLongEmailIsShortenedInItsMiddle() {
            const email = "somebody-with-a-name-".repeat(4) + "@a-long-domain.example.com"
            world.setAccounts([email])
            world.signIn(email)
            show()

            const label = find(email + "/text")
            verify(label.truncated)
            compare(label.elide, Text.ElideMiddle)
            compare(label.lineCount, 1)
            verify(gapAfter(label, find(email + "/badge")) >= 12)
            mouseMove(label)
            tryVerify(() => label.toolTipShown)
        }

        function test_measures() {
            world.setAccounts(["a@x", "b@x"])
            world.signIn("b@x")
            show()

            compare(gapBelow(find("header"), find("a@x")), 4)
            compare(gapBelow(find("a@x"), find("b@x")), 4)
            compare(find("a@x").width, 376)
            const label = find("a@x/text")
            compare(label.textStyle, Typography.body)
            compare(insets(label, find("a@x")).slice(0, 2), [8 + 14 + 6, 4])
            compare(find("a@x").height, label.height + 8)
            const symbol = placeOf(find("a@x/symbol"), find("a@x"))
            compare(symbol.x + symbol.width / 2, 8 + 7)
            const badge = find("b@x/badge")
            compare(insets(badge, find("b@x")).slice(1), [4, 8, 4])
        }

        function test_aClickAnywhereOnARowSwitches_data() {
            return [{ tag: "text", x: 60 }, { tag: "end", x: 370 }, { tag: "edge", x: 1 }]
        }

        function test_aClickAnywhereOnARowSwitches(data) {
            world.setAccounts(["a@x", "b@x"])
            show()
            world.expect("setAccount", "b@x")
            mouseClick(find("b@x"), data.x, 2)
            world.settle()
            world.fail("not now")

            compare(world.stateManager.errorMessage, "gcloud command failed (exit 1): not now")
        }

        function test_theActiveAccountIsSwitchedToLikeAnyOther() {
            world.signIn("a@x")
            show()
            world.expect("setAccount", "a@x")
            press("a@x")
            world.fail("")
        }

        function test_aSwitchMovesTheMark() {
            world.signIn("a@x")
            world.setAccounts(["a@x", "b@x"])
            show()
            world.expect("setAccount", "b@x")
            world.expect("listProjects")
            press("b@x")
            verify(isShown("a@x/badge"), "the mark stays until gcloud is done")
            world.configure({ account: "b@x" })
            world.finish()
            world.finish("[]")

            verify(!isShown("a@x/badge"))
            verify(isShown("b@x/badge"))
        }

        function test_aFailedSwitchLeavesTheMark() {
            world.signIn("a@x")
            world.setAccounts(["a@x", "b@x"])
            show()
            world.expect("setAccount", "b@x")
            press("b@x")
            world.fail("no")

            verify(isShown("a@x/badge"))
            verify(!isShown("b@x/badge"))
        }

        function test_assistiveTechnologyReadsRowsWithTheirPlace() {
            world.setAccounts(["a@x", robot])
            world.signIn("a@x")
            show()

            compare(find("a@x").Accessible.role, Accessible.Button)
            compare(find("a@x").Accessible.name, "a@x")
            compare(find("a@x").Accessible.description, "active, 1 of 2")
            verify(find("a@x").Accessible.selected)
            compare(find(robot).Accessible.description, "service account, 2 of 2")
            verify(!find(robot).Accessible.selected)
            world.expect("setAccount", robot)
            find(robot).Accessible.pressAction()
            world.settle()
            world.fail("")
        }

        function test_theKeyboardHasOneStopForAllRows() {
            world.setAccounts(["a@x", "b@x", "c@x"])
            show()
            keyClick(Qt.Key_Tab)
            verify(find("a@x").visualFocus)
            keyClick(Qt.Key_Down)
            verify(find("b@x").visualFocus)
            keyClick(Qt.Key_Tab)
            verify(!find("c@x").activeFocus)
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            world.expect("setAccount", "b@x")
            keyClick(Qt.Key_Return)
            world.settle()
            world.fail("")
        }

        function test_theKeyboardStaysInTheRowsWhenItsRowGoes() {
            world.setAccounts(["a@x", "b@x", "c@x"])
            show()
            shown.rows.focusRow(2)
            verify(find("c@x").visualFocus)
            world.setAccounts(["a@x", "b@x"])

            verify(find("b@x").visualFocus)
            world.setAccounts(["z@x", "a@x", "b@x"])
            verify(find("b@x").visualFocus)
            keyClick(Qt.Key_Up)
            verify(find("a@x").visualFocus)
        }

        function test_aClickLeavesNoFocusMark() {
            world.setAccounts(["a@x"])
            show()
            world.expect("setAccount", "a@x")
            press("a@x")
            world.fail("")

            verify(find("a@x").activeFocus)
            verify(!find("a@x").visualFocus)
        }

        function test_allThatAreActiveAreMarked() {
            world.setAccounts(["a@x", "b@x", "a@x"])
            world.signIn("a@x")
            show()

            const marked = []
            const rows = find("rows").children[0].children
            for (let index = 0; index < rows.length; ++index) {
                if (rows[index].email !== undefined)
                    marked.push([rows[index].email, rows[index].current, isShown("badge", rows[index])])
            }
            compare(marked, [["a@x", true, true], ["b@x", false, false], ["a@x", true, true]])
        }

        function test_partsOfARowStandInItsMiddle() {
            world.setAccounts(["a@x"])
            world.signIn("a@x")
            show()

            for (const part of ["symbol", "text", "badge"]) {
                const place = placeOf(find("a@x/" + part), find("a@x"))
                fuzzyCompare(place.y + place.height / 2, find("a@x").height / 2, 0.5, part)
            }
            compare(find("a@x/symbol").size, Typography.callout.pixelSize)
        }

        function test_theKeyboardReadsALongEmailInFull() {
            const email = "somebody-with-a-name-".repeat(4) + "@a-long-domain.example.com"
            world.setAccounts([email])
            show()
            verify(!find(email + "/text").toolTipShown)
            shown.rows.focusRow(0)

            tryVerify(() => find(email + "/text").toolTipShown)
        }
    }
}
