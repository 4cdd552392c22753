// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI
import VeldraUI.Style

Item {
    width: 400
    height: 400

    Component {
        id: viewComponent

        ConfigurationSwitcherView {
            width: 376
        }
    }

    Component {
        id: spyComponent

        SignalSpy {}
    }

    ViewTest {
        id: test

        name: "ConfigurationSwitcherView"
        view: viewComponent

        function showTwo() {
            world.setConfigurations([{ name: "default", project: "p-1" }, { name: "labs" }], "labs")
            show()
        }

        function test_headerAndRowsStandInTheOrderOfTheConfigurations() {
            showTwo()

            compare(find("header").title, "Configurations")
            compare(text("header/title"), "CONFIGURATIONS")
            compare(find("header").icon, "slider.horizontal.3")
            verify(find("default").y < find("labs").y)
        }

        function test_anEmptyListHasOnlyHeaderAndButton() {
            show()

            verify(!isShown("rows"))
            compare(shown.children.length, 3)
            verify(isShown("manageButton"))
            compare(gapBelow(find("header"), find("manageButton")), 4 + 2)
        }

        function test_theProjectStandsBelowTheNameWhereThereIsOne() {
            showTwo()

            compare(text("default/text"), "default")
            compare(find("default/text").textStyle, Typography.body)
            verify(isShown("default/subtitle"))
            compare(text("default/subtitle"), "p-1")
            compare(find("default/subtitle").textStyle, Typography.caption)
            compare(find("default/subtitle").color, colors.secondary)
            compare(gapBelow(find("default/text"), find("default/subtitle")), 1)
            verify(!isShown("labs/subtitle"))
        }

        function test_aConfigurationWithoutAProjectIsOneLineHigh() {
            world.setConfigurations([{ name: "a" }, { name: "b" }, { name: "c", project: "" }], "b")
            show()

            compare(find("a").height, find("a/text").height + 8)
            compare(find("c").height, find("c/text").height + 1 + find("c/subtitle").height + 8)
        }

        function test_onlyActiveConfigurationsAreTintedAndMarked() {
            showTwo()

            verify(find("labs").current && isShown("labs/badge"))
            verify(!find("default").current && !isShown("default/badge"))
            compare(text("labs/badge"), "active")
            compare(find("labs/badge").color, colors.green)
            world.setConfigurations([{ name: "default" }, { name: "labs" }], "default")
            verify(find("default").current && isShown("default/badge"))
            verify(!find("labs").current && !isShown("labs/badge"))
        }

        function test_measures() {
            showTwo()

            compare(gapBelow(find("header"), find("default")), 4)
            compare(gapBelow(find("default"), find("labs")), 4)
            compare(gapBelow(find("labs"), find("manageButton")), 4 + 2)
            compare(placeOf(find("manageButton")).x, 8)
            compare(insets(find("default/text"), find("default")).slice(0, 2), [8, 4])
            compare(insets(find("labs/badge"), find("labs")).slice(1), [4, 8, 4])
            compare(shown.height, placeOf(find("manageButton")).y + find("manageButton").height)
        }

        function test_theManageButtonOpensTheManager() {
            showTwo()
            const spy = createTemporaryObject(spyComponent, stage, { target: shown, signalName: "openManager" })
            const button = find("manageButton")
            compare(button.text, "Manage Configurations...")
            compare(button.textStyle, Typography.callout)
            verify(button instanceof BorderedButton)
            verify(!button.small)
            press("manageButton")

            compare(spy.count, 1)
        }

        function test_aClickActivates() {
            showTwo()
            world.expect("activateConfiguration", "default")
            press("default")
            verify(isShown("labs/badge"))
            world.setConfigurations([{ name: "default" }, { name: "labs" }], "default")
            world.finish()

            verify(isShown("default/badge"))
        }

        function test_aFailedActivationLeavesTheMark() {
            showTwo()
            world.expect("activateConfiguration", "default")
            press("default")
            world.fail("no such configuration")

            verify(isShown("labs/badge"))
            compare(world.stateManager.errorMessage, "gcloud command failed (exit 1): no such configuration")
        }

        function test_longTextsAreShortenedAndToldInAToolTip() {
            const name = "n".repeat(90)
            world.setConfigurations([{ name: name, project: "p".repeat(90) }], name)
            show()

            verify(find(name + "/text").truncated)
            verify(find(name + "/subtitle").truncated)
            verify(gapAfter(find(name + "/text"), find(name + "/badge")) >= 12)
            mouseMove(find(name + "/text"))
            tryVerify(() => find(name + "/text").toolTipShown)
        }

        function test_assistiveTechnologyReadsRowsWithTheirPlace() {
            showTwo()

            compare(find("default").Accessible.name, "default")
            compare(find("default").Accessible.description, "p-1, 1 of 2")
            compare(find("labs").Accessible.description, "active, 2 of 2")
            verify(find("labs").Accessible.selected)
        }

        function test_theKeyboardActivates() {
            showTwo()
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Down)
            verify(find("labs").visualFocus)
            world.expect("activateConfiguration", "labs")
            keyClick(Qt.Key_Space)
            world.settle()
            world.finish()
        }

        function test_allThatAreActiveAreMarked() {
            world.setConfigurations([{ name: "a" }, { name: "b" }, { name: "a" }], "a")
            show()

            const marked = []
            const rows = find("rows").children[0].children
            for (let index = 0; index < rows.length; ++index) {
                if (rows[index].name !== undefined)
                    marked.push([rows[index].name, rows[index].current, isShown("badge", rows[index])])
            }
            compare(marked, [["a", true, true], ["b", false, false], ["a", true, true]])
        }

        function test_partsOfARowStandInItsMiddle() {
            world.setConfigurations([{ name: "a", project: "p" }], "a")
            show()

            const row = find("a"), name = placeOf(find("a/text"), row), project = placeOf(find("a/subtitle"), row)
            fuzzyCompare((name.y + project.y + project.height) / 2, row.height / 2, 0.5)
            const badge = placeOf(find("a/badge"), row)
            fuzzyCompare(badge.y + badge.height / 2, row.height / 2, 0.5)
        }

        function test_assistiveTechnologyActivates() {
            showTwo()
            compare(find("default").Accessible.role, Accessible.Button)
            world.expect("activateConfiguration", "default")
            find("default").Accessible.pressAction()
            world.settle()
            world.finish()
        }
    }
}
