// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI
import VeldraUI.Style

Item {
    width: 400
    height: 750

    Component {
        id: viewComponent

        PopoverView {}
    }

    Component {
        id: spyComponent

        SignalSpy {}
    }

    ViewTest {
        id: test

        name: "PopoverKeyboard"
        view: viewComponent

        // Six projects, two accounts, two configurations and a saved account; the keyboard is on the
        // popover itself, as when it has just opened.
        function open() {
            world.setConfigurations([{ name: "default", project: "a", account: "u1@x" }, { name: "labs" }], "default")
            world.setAccounts(["u1@x", "u2@x"])
            world.saveAccount("a", "saved@a")
            world.list(["a", "b", "c", "d", "e", "f"])
            show()
            world.settle()
            shown.forceActiveFocus()
        }

        function spyOn(signalName: string): SignalSpy {
            return createTemporaryObject(spyComponent, stage, { target: shown, signalName: signalName })
        }

        function keyClicks(key: int, count: int) {
            for (let time = 0; time < count; ++time)
                keyClick(key)
        }

        function onRow(path: string): bool {
            return find(path).visualFocus
        }

        function test_noControlIsMarkedWhenItOpens() {
            open()

            verify(shown.activeFocus)
            verify(!find("copyButton").activeFocus)
        }

        function test_downGoesThroughTheRowsOfAllSections() {
            open()
            const rows = ["a", "b", "c", "d", "e", "f"].map(id => "projects/rows/" + id)
                .concat(["accounts/u1@x", "accounts/u2@x", "configurations/default", "configurations/labs",
                         "impersonation/saved@a"])
            for (const row of rows) {
                keyClick(Qt.Key_Down)
                verify(onRow(row), row)
            }
            for (const row of rows.reverse().slice(1)) {
                keyClick(Qt.Key_Up)
                verify(onRow(row), row)
            }
            keyClick(Qt.Key_Up)
            verify(find("projects/filter/field").activeFocus)
            keyClick(Qt.Key_Down)
            verify(onRow("projects/rows/a"))
        }

        function test_upStartsAtTheLastRow() {
            open()
            keyClick(Qt.Key_Up)

            verify(onRow("impersonation/saved@a"))
        }

        function test_arrowsGoOnFromAnyControl_data() {
            return [
                { tag: "from the copy button down", from: "copyButton", key: Qt.Key_Down, to: "projects/rows/a" },
                { tag: "from the manage button up", from: "manageButton", key: Qt.Key_Up, to: "configurations/labs" },
                { tag: "from the manage button down", from: "manageButton", key: Qt.Key_Down,
                  to: "impersonation/saved@a" },
                { tag: "from the e-mail field up", from: "emailField", key: Qt.Key_Up, to: "impersonation/saved@a" },
                { tag: "from the login button up", from: "loginButton", key: Qt.Key_Up, to: "impersonation/saved@a" },
                { tag: "from the footer up", from: "quitButton", key: Qt.Key_Up, to: "impersonation/saved@a" },
            ]
        }

        function test_arrowsGoOnFromAnyControl(data) {
            open()
            find(data.from).forceActiveFocus(Qt.TabFocusReason)
            keyClick(data.key)

            verify(onRow(data.to))
        }

        function test_emptySectionsAreSkipped() {
            world.list(["a"])
            world.setConfigurations([{ name: "default" }], "default")
            show()
            world.settle()
            shown.forceActiveFocus()
            keyClick(Qt.Key_Down)
            verify(onRow("projects/rows/a"))
            keyClick(Qt.Key_Down)
            verify(onRow("configurations/default"))
            keyClick(Qt.Key_Up)
            keyClick(Qt.Key_Up)
            verify(onRow("projects/rows/a"), "there is no filter to go to")
        }

        function test_whatTheKeyboardReachesIsBroughtIntoView() {
            world.listNumbered(300)
            open()
            world.listNumbered(300)
            keyClick(Qt.Key_Down)
            for (let page = 0; page < 6; ++page) {
                keyClick(Qt.Key_PageDown)
                const row = shown.Window.activeFocusItem
                const place = placeOf(row)
                verify(place.y >= 0 && place.y + place.height <= find("scrollArea").height, row.projectId)
            }
            verify(onRow("projects/rows/project-00061"))
        }

        function test_returnActivates() {
            open()
            keyClicks(Qt.Key_Down, 2)
            world.expect("setProject", "b")
            keyClick(Qt.Key_Return)
            world.settle()
            world.finish()
        }

        function test_typingGoesToTheFilter_data() {
            return [{ tag: "from the popover", from: "" }, { tag: "from a row", from: "accounts/u2@x" },
                    { tag: "from a button", from: "copyButton" }, { tag: "from the footer", from: "quitButton" }]
        }

        function test_typingGoesToTheFilter(data) {
            open()
            if (data.from !== "")
                find(data.from).forceActiveFocus(Qt.TabFocusReason)
            keyClick("b")
            keyClick("C", Qt.ShiftModifier)
            keyClick(Qt.Key_Backspace)

            compare(find("projects").searchText, "b")
            verify(find("projects/filter/field").activeFocus)
            compare(find("projects/filter/field").cursorPosition, 1)
        }

        function test_backspaceShortensTheFilterFromAnywhere() {
            open()
            keyClick("b")
            keyClick("c")
            keyClick(Qt.Key_Tab)
            find("copyButton").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Backspace)

            compare(find("projects").searchText, "b")
        }

        function test_typingInAnotherFieldStaysThere() {
            open()
            find("emailField").forceActiveFocus()
            keyClick("x")

            compare(text("emailField"), "x")
            compare(find("projects").searchText, "")
        }

        function test_withoutAFilterTypingDoesNothing() {
            open()
            world.list(["a", "b"])
            keyClick("b")

            compare(find("projects").searchText, "")
            verify(find("projects/rows/a"))
        }

        function test_commandsAreNoText() {
            open()
            keyClick(Qt.Key_B, Qt.ControlModifier)
            keyClick(Qt.Key_B, Qt.AltModifier)
            keyClick(Qt.Key_Delete)

            compare(find("projects").searchText, "")
        }

        function test_escapeClearsTheFilterAndThenCloses() {
            open()
            const close = spyOn("close")
            keyClick("b")
            keyClick(Qt.Key_Escape)
            compare(find("projects").searchText, "")
            compare(close.count, 0)
            keyClick(Qt.Key_Escape)
            compare(close.count, 1)
        }

        function test_escapeClosesFromAnywhere_data() {
            return [{ tag: "row", from: "accounts/u2@x" }, { tag: "field", from: "emailField" },
                    { tag: "footer", from: "quitButton" }, { tag: "segment", from: "modePicker" }]
        }

        function test_escapeClosesFromAnywhere(data) {
            open()
            const close = spyOn("close")
            find(data.from).forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Escape)

            compare(close.count, 1)
        }

        function test_f5Refreshes() {
            open()
            keyClick(Qt.Key_F5)
            world.settle()

            compare(text("refreshButton"), "Done")
            world.advance(1500)
        }

        function test_f5IsDisabledWhileItLoads() {
            open()
            world.expire()
            world.expect("listProjects")
            keyClick(Qt.Key_F5)
            world.settle()
            keyClick(Qt.Key_F5)
            world.settle()
            compare(world.commands, 2)
            world.finish("[]")
        }

        function test_ctrlMOpensTheManagerAndCtrlQQuits() {
            open()
            const manager = spyOn("openManager"), quit = spyOn("quit")
            keyClick(Qt.Key_M, Qt.ControlModifier)
            compare([manager.count, quit.count], [1, 0])
            find("emailField").forceActiveFocus()
            keyClick(Qt.Key_M, Qt.ControlModifier)
            keyClick(Qt.Key_Q, Qt.ControlModifier)
            compare([manager.count, quit.count], [2, 1])
        }

        // Where the Tab key leads, in order.
        function stops(): var {
            const names = []
            for (let stop = 0; stop < 40; ++stop) {
                keyClick(Qt.Key_Tab)
                const item = shown.Window.activeFocusItem
                const name = item.objectName || item.text
                if (names.includes(name))
                    break
                names.push(name)
            }
            return names
        }

        function test_tabReachesEveryControlAndEachListOnce() {
            open()
            world.setError("boom")

            const reached = stops()
            for (const name of ["copyButton", "retryButton", "dismissButton", "field", "a", "u1@x", "default",
                                "manageButton", "ADC Only", "saved@a", "emailField", "loginButton",
                                "quotaButton", "managerButton", "quitButton", "refreshButton"])
                verify(reached.includes(name), name + " in " + reached)
            verify(!reached.includes("b") && !reached.includes("u2@x"), reached)
        }

        function test_shiftTabGoesBackThroughTheSameControls() {
            open()
            find("managerButton").forceActiveFocus(Qt.TabFocusReason)
            const reached = []
            for (let stop = 0; stop < 9; ++stop) {
                keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
                const item = shown.Window.activeFocusItem
                reached.push(item.objectName || item.text)
            }

            compare(reached, ["quotaButton", "loginButton", "emailField", "saved@a", "ADC Only",
                              "manageButton", "default", "u1@x", "a"])
        }

        function test_mouseUsersSeeNoFocusMark() {
            open()
            world.expect("setProject", "b")
            press("projects/rows/b")
            world.fail("")
            world.stateManager.dismissError()
            mouseClick(find("managerButton"))

            verify(!find("managerButton").visualFocus)
            verify(!find("projects/rows/b").visualFocus)
        }
    }
}
