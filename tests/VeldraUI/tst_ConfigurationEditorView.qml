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

        ConfigurationEditorView {
            width: 600
            height: 400
        }
    }

    ViewTest {
        id: test

        name: "ConfigurationEditorView"
        view: viewComponent

        readonly property Sheet sheet: shown ? (shown as ConfigurationEditorView).createSheet : null

        function inSheet(name: string): Item {
            return find(name, sheet.contentItem)
        }

        function showThree() {
            world.setConfigurations([
                { name: "default", project: "p-1", account: "a@x", region: "europe-west1" },
                { name: "labs", project: "p-2" },
                { name: "bare" },
            ], "default")
            show()
        }

        function showNumbered(count: int, properties) {
            const configurations = []
            for (let number = 0; number < count; ++number)
                configurations.push({ name: "configuration-" + number, project: "p" + number })
            world.setConfigurations(configurations, "configuration-0")
            show(properties)
        }

        function openSheet() {
            mouseClick(find("createButton"))
            tryVerify(() => sheet.opened)
        }

        function cancelSheet() {
            mouseClick(inSheet("cancelButton"))
            tryVerify(() => !sheet.visible)
        }

        function type(text: string) {
            for (const character of text)
                keyClick(character)
        }

        function test_rowsStandInTheOrderOfTheConfigurations() {
            showThree()

            compare(find("list").count, 3)
            verify(placeOf(find("default")).y < placeOf(find("labs")).y)
            verify(placeOf(find("labs")).y < placeOf(find("bare")).y)
        }

        function test_listDividerAndBottomBarFillThePage() {
            showThree()

            compare(placeOf(find("list")), Qt.rect(0, 0, 600, find("divider").y))
            compare(gapBelow(find("list"), find("divider")), 0)
            compare(gapBelow(find("divider"), find("bottomBar")), 0)
            compare(find("divider").height, 1)
            const bar = placeOf(find("bottomBar"))
            compare(bar.y + bar.height, 400)
            const padding = insets(find("createButton"), find("bottomBar"))
            compare([padding[0], padding[1], padding[3]], [12, 12, 12])
            compare(text("createButton"), "Create Configuration")
        }

        function test_aRowTellsEachPropertyThatIsSet() {
            showThree()

            compare(text("default/name"), "default")
            compare(text("default/project"), "Project: p-1")
            compare(text("default/account"), "Account: a@x")
            compare(text("default/region"), "Region: europe-west1")
            for (const name of ["project", "account", "region"]) {
                verify(isShown("default/" + name))
                compare(find("default/" + name).textStyle, Typography.caption)
                compare(find("default/" + name).color, colors.secondary)
            }
            verify(isShown("labs/project") && !isShown("labs/account") && !isShown("labs/region"))
        }

        function test_propertiesStandBelowTheNameInTheirOrder() {
            showThree()
            const tops = ["name", "project", "account", "region"].map(name => placeOf(find("default/" + name)).y)

            compare(tops, tops.slice().sort((a, b) => a - b))
            compare(new Set(["project", "account", "region"].map(name => placeOf(find("default/" + name)).x)).size, 1)
            compare(placeOf(find("default/name")).x, placeOf(find("default/project")).x)
        }

        function test_aConfigurationWithoutPropertiesShowsItsNameOnly() {
            showThree()

            compare(text("bare/name"), "bare")
            for (const name of ["project", "account", "region"])
                verify(!isShown("bare/" + name), name)
        }

        function test_aPropertySetToNothingIsShown() {
            world.setConfigurations([{ name: "a", project: "", account: "", region: "" }], "a")
            show()

            compare(text("a/project"), "Project: ")
            verify(isShown("a/project") && isShown("a/account") && isShown("a/region"))
        }

        function test_rowsArePaddedFourPointsAboveAndBelow() {
            showThree()
            const padding = insets(find("default/texts"), find("default"))

            compare(padding[1], 4)
            compare(padding[3], 4)
            compare(find("default/name").weight, Font.Medium)
            compare(find("default/name").textStyle, Typography.body)
        }

        function test_theActiveConfigurationHasTheBadgeAndNoButtons() {
            showThree()

            verify(isShown("default/badge"))
            compare(text("default/badge"), "active")
            compare(find("default/badge").color, colors.green)
            verify(gapAfter(find("default/name"), find("default/badge")) === 6)
            verify(!isShown("default/activateButton"))
            verify(!isShown("default/deleteButton"))
        }

        function test_theOthersHaveButtonsAtTheEndAndNoBadge() {
            showThree()

            verify(!isShown("labs/badge"))
            verify(isShown("labs/activateButton") && isShown("labs/deleteButton"))
            compare(text("labs/activateButton"), "Activate")
            verify(find("labs/activateButton").small)
            compare(find("labs/deleteButton").symbolName, "trash")
            verify(find("labs/deleteButton").destructive)
            compare(text("labs/deleteButton"), "")
            verify(gapAfter(find("labs/activateButton"), find("labs/deleteButton")) > 0)
            const place = placeOf(find("labs/deleteButton"))
            compare(place.x + place.width, 600 - 12)
        }

        function test_activate() {
            showThree()
            world.expect("activateConfiguration", "labs")
            press("labs/activateButton")
            world.setConfigurations([{ name: "default" }, { name: "labs" }], "labs")
            world.finish()

            verify(isShown("labs/badge") && !isShown("labs/activateButton"))
            verify(isShown("default/activateButton"))
        }

        function test_deleteAsksForNothing() {
            showThree()
            world.expect("deleteConfiguration", "bare")
            press("bare/deleteButton")
            world.setConfigurations([{ name: "default" }, { name: "labs" }], "default")
            world.finish()

            compare(find("list").count, 2)
            tryVerify(() => find("bare") === null)
        }

        function test_aFailedDeletionLeavesTheRow() {
            showThree()
            world.expect("deleteConfiguration", "bare")
            press("bare/deleteButton")
            world.fail("no")

            compare(find("list").count, 3)
            verify(world.stateManager.hasError)
        }

        function test_thePageIsEmptyWithoutConfigurations() {
            show()

            compare(find("list").count, 0)
            verify(isShown("createButton"))
        }

        function test_theSheetAsksForAName() {
            showThree()
            verify(!sheet.visible)
            openSheet()

            verify(shown.showingCreateSheet)
            compare(inSheet("title").text, "New Configuration")
            compare(inSheet("title").textStyle, Typography.headline)
            compare(inSheet("nameField").placeholderText, "Configuration name")
            verify(inSheet("nameField").inputMethodHints & Qt.ImhNoPredictiveText)
            compare(inSheet("cancelButton").text, "Cancel")
            verify(inSheet("cancelButton") instanceof BorderedButton)
            compare(inSheet("createButton").text, "Create")
            verify(inSheet("createButton") instanceof ProminentButton)
            verify(gapAfter(inSheet("cancelButton"), inSheet("createButton")) > 0)
        }

        function test_theSheetIsThreeHundredPointsWide() {
            showThree()
            openSheet()

            compare(sheet.width, 300)
            compare([sheet.leftPadding, sheet.topPadding, sheet.rightPadding, sheet.bottomPadding], [20, 20, 20, 20])
            compare(gapBelow(inSheet("title"), inSheet("nameField")), 16)
            compare(gapBelow(inSheet("nameField"), inSheet("buttons")), 16)
            for (const name of ["title", "nameField", "buttons"]) {
                const place = placeOf(inSheet(name), sheet.contentItem)
                fuzzyCompare(place.x + place.width / 2, 130, 0.5, name)
            }
        }

        function test_theSheetTakesTheKeyboardToItsField() {
            showThree()
            openSheet()

            verify(inSheet("nameField").activeFocus)
            verify(shown.isNameFieldFocused)
            type("ab")
            compare(shown.newConfigName, "ab")
        }

        function test_createIsDisabledWhileTheNameIsEmpty() {
            showThree()
            openSheet()
            verify(!inSheet("createButton").enabled)
            keyClick(Qt.Key_Space)
            compare(shown.newConfigName, " ")
            verify(inSheet("createButton").enabled)
            keyClick(Qt.Key_Backspace)

            verify(!inSheet("createButton").enabled)
        }

        function test_cancelClearsTheNameAndReopeningShowsAnEmptyFocusedField() {
            showThree()
            openSheet()
            type("ab")
            cancelSheet()
            verify(!shown.showingCreateSheet)
            compare(shown.newConfigName, "")
            openSheet()

            compare(inSheet("nameField").text, "")
            verify(inSheet("nameField").activeFocus)
        }

        function test_escapeCancels() {
            showThree()
            openSheet()
            type("ab")
            keyClick(Qt.Key_Escape)
            tryVerify(() => !sheet.visible)

            verify(!shown.showingCreateSheet)
            compare(shown.newConfigName, "")
        }

        function test_createPassesTheNameAsItIsAndClosesWhenItHasEnded() {
            showThree()
            openSheet()
            type(" a b ")
            world.expect("createConfiguration", " a b ")
            mouseClick(inSheet("createButton"))
            world.settle()
            verify(shown.showingCreateSheet)
            compare(shown.newConfigName, " a b ")
            world.finish()

            verify(!shown.showingCreateSheet)
            compare(shown.newConfigName, "")
            tryVerify(() => !sheet.visible)
        }

        function test_aFailedCreationClosesTheSheetToo() {
            showThree()
            openSheet()
            type("x")
            world.expect("createConfiguration", "x")
            mouseClick(inSheet("createButton"))
            world.settle()
            world.fail("already exists")

            compare(shown.newConfigName, "")
            tryVerify(() => !sheet.visible)
            verify(world.stateManager.hasError)
        }

        function test_thePageMayGoWhileAConfigurationIsBeingCreated() {
            showThree()
            openSheet()
            type("x")
            world.expect("createConfiguration", "x")
            mouseClick(inSheet("createButton"))
            world.settle()
            shown.destroy()
            shown = null
            wait(0)
            world.finish()
        }

        function test_returnInTheFieldCreates() {
            showThree()
            openSheet()
            keyClick(Qt.Key_Return)
            verify(sheet.visible)
            type("x")
            world.expect("createConfiguration", "x")
            keyClick(Qt.Key_Return)
            world.settle()
            world.finish()

            tryVerify(() => !sheet.visible)
        }

        function test_theSheetKeepsTheMouseFromThePage() {
            showThree()
            openSheet()
            mouseClick(find("labs/deleteButton"))
            world.settle()

            compare(world.commands, 0)
            verify(sheet.visible)
        }

        function test_theNewConfigurationAppears() {
            showThree()
            world.setConfigurations([{ name: "default" }, { name: "new" }], "default")

            tryVerify(() => find("new") !== null)
            verify(isShown("new/activateButton"))
        }

        function test_longAndOddNamesKeepTheButtonsInThePage() {
            const lengthy = "a-name-" + "n".repeat(200)
            const odd = "設定 عربي  x"
            world.setConfigurations([{ name: lengthy, project: "p".repeat(200), account: "a".repeat(200) },
                                     { name: odd }, { name: "x" }], "x")
            show({ width: 480 })

            verify(find(lengthy + "/name").truncated)
            verify(find(lengthy + "/project").truncated)
            verify(gapAfter(find(lengthy + "/name"), find(lengthy + "/activateButton")) >= 12)
            compare(text(odd + "/name"), odd)
            mouseMove(find(lengthy + "/name"))
            tryVerify(() => find(lengthy + "/name").toolTipShown)
        }

        function test_aLongActiveNameLeavesRoomForTheBadge() {
            const lengthy = "n".repeat(200)
            world.setConfigurations([{ name: lengthy }], lengthy)
            show()
            const badge = placeOf(find(lengthy + "/badge"))

            verify(badge.x + badge.width <= 600 - 12)
        }

        function test_twoHundredConfigurationsCostWhatIsOnScreen() {
            showNumbered(200)

            compare(find("list").count, 200)
            verify(find("configuration-0") !== null)
            compare(find("configuration-199"), null)
        }

        function test_theWheelScrollsTheList() {
            showNumbered(200)
            mouseWheel(find("list"), 300, 100, 0, -120)

            compare(find("list").contentY, 60)
            mouseWheel(find("list"), 300, 100, 0, 1200)
            compare(find("list").contentY, 0)
        }

        function test_theKeyboardReachesEveryRowAndButton() {
            showNumbered(200)
            keyClick(Qt.Key_Tab)
            verify(find("configuration-0").visualFocus)
            keyClick(Qt.Key_Down)
            verify(find("configuration-1").visualFocus)
            keyClick(Qt.Key_Tab)
            verify(find("configuration-1/activateButton").visualFocus)
            keyClick(Qt.Key_Tab)
            verify(find("configuration-1/deleteButton").visualFocus)
            keyClick(Qt.Key_Tab)
            verify(find("createButton").visualFocus)
            keyClick(Qt.Key_Backtab)
            verify(find("configuration-1/deleteButton").visualFocus)
            keyClick(Qt.Key_End)
            verify(find("configuration-199").visualFocus)
            const place = placeOf(find("configuration-199"), find("list"))
            verify(place.y >= 0 && place.y + place.height <= find("list").height)
            keyClick(Qt.Key_Home)
            verify(find("configuration-0").visualFocus)
        }

        function test_theKeyboardActivatesAndDeletes() {
            showThree()
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Tab)
            world.expect("activateConfiguration", "labs")
            keyClick(Qt.Key_Return)
            world.settle()
            world.finish()
            keyClick(Qt.Key_Tab)
            world.expect("deleteConfiguration", "labs")
            keyClick(Qt.Key_Space)
            world.settle()
            world.finish()
        }

        function test_theNeighbourOfADeletedRowHasTheKeyboard() {
            showThree()
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Tab)
            world.expect("deleteConfiguration", "labs")
            keyClick(Qt.Key_Space)
            world.settle()
            world.setConfigurations([{ name: "default" }, { name: "bare" }], "default")
            world.finish()

            tryVerify(() => find("bare").visualFocus)
        }

        function test_aClickLeavesNoMark() {
            showThree()
            mouseClick(find("labs"), 200, 5)

            verify(find("labs").activeFocus && !find("labs").visualFocus)
            keyClick(Qt.Key_Down)
            verify(find("bare").visualFocus)
        }

        function test_assistiveTechnologyReadsRowsAndButtons() {
            showThree()

            compare(find("list").Accessible.role, Accessible.List)
            compare(find("default").Accessible.role, Accessible.ListItem)
            compare(find("default").Accessible.name, "default")
            compare(find("default").Accessible.description,
                    "Project: p-1, Account: a@x, Region: europe-west1, active, 1 of 3")
            compare(find("bare").Accessible.description, "3 of 3")
            compare(find("labs/deleteButton").Accessible.name, "Delete")
            compare(find("labs/deleteButton").Accessible.description, "labs")
            compare(find("labs/activateButton").Accessible.description, "labs")
            compare(sheet.contentItem.Accessible.role, Accessible.Dialog)
        }

        function middleOf(item: Item): real {
            const place = placeOf(item)
            return place.y + place.height / 2
        }

        function test_partsOfARowStandInItsMiddle() {
            showThree()

            for (const part of ["texts", "activateButton", "deleteButton"])
                fuzzyCompare(middleOf(find("labs/" + part)), middleOf(find("labs")), 0.5, part)
            fuzzyCompare(middleOf(find("default/badge")), middleOf(find("default/name")), 0.5)
        }

        function test_theKeyboardReadsLongTextsInFull() {
            const lengthy = "n".repeat(200)
            world.setConfigurations([{ name: lengthy, project: "p".repeat(200) }, { name: "x" }], "x")
            show()
            verify(find(lengthy + "/project").truncated)
            keyClick(Qt.Key_Tab)
            verify(find(lengthy).visualFocus)

            tryVerify(() => find(lengthy + "/name").toolTipShown)
            tryVerify(() => find(lengthy + "/project").toolTipShown)
        }

        function test_barAndDividerAreAsWideAsThePage() {
            showThree()

            for (const name of ["divider", "bottomBar"])
                compare(find(name).width, 600, name)
            verify(find("createButton") instanceof BorderedButton)
        }

        function test_theNameIsTypedInAFieldWithARoundedBorder() {
            showThree()
            openSheet()

            verify(inSheet("nameField").framed)
            shown.newConfigName = "given"
            compare(inSheet("nameField").text, "given")
        }

        function test_assistiveTechnologyReadsListAndSheet() {
            showThree()
            openSheet()

            compare(find("list").Accessible.name, "Configurations")
            compare(sheet.contentItem.Accessible.name, "New Configuration")
            compare(inSheet("title").Accessible.role, Accessible.Heading)
            compare(inSheet("nameField").Accessible.role, Accessible.EditableText)
            compare(inSheet("nameField").Accessible.name, "Configuration name")
            for (const [name, text] of [["cancelButton", "Cancel"], ["createButton", "Create"]]) {
                compare(inSheet(name).Accessible.role, Accessible.Button)
                compare(inSheet(name).Accessible.name, text)
            }
        }

        function test_assistiveTechnologyActivatesAndDeletes() {
            showThree()
            world.expect("activateConfiguration", "labs")
            find("labs/activateButton").Accessible.pressAction()
            world.settle()
            world.fail("")
            world.expect("deleteConfiguration", "labs")
            find("labs/deleteButton").Accessible.pressAction()
            world.settle()
            world.fail("")
        }

        function test_everyLongPropertyIsShortenedInItsMiddle() {
            world.setConfigurations([{ name: "a", project: "p".repeat(200), account: "a".repeat(200),
                                       region: "r".repeat(200) }, { name: "x" }], "x")
            show()

            for (const name of ["project", "account", "region"]) {
                verify(find("a/" + name).truncated, name)
                compare(find("a/" + name).elide, Text.ElideMiddle)
                compare(gapAfter(find("a/" + name), find("a/activateButton")), 12)
            }
        }
    }
}
