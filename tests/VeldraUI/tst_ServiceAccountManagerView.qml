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

        ServiceAccountManagerView {
            width: 600
            height: 400
        }
    }

    ViewTest {
        id: test

        name: "ServiceAccountManagerView"
        view: viewComponent

        readonly property var emptyDescriptions: ({
            failed: "Could not list service accounts (missing IAM permissions?). Add one manually below.",
            none: "No service accounts found for this project. Add one manually below.",
        })

        function listing(emails): string {
            return JSON.stringify(emails.map(email => ({ email: email, displayName: "Name of " + email })))
        }

        // The page over an active project whose discovery finds these accounts.
        function showFound(emails, properties) {
            world.signIn("a@x", "p1")
            world.expect("listServiceAccounts", "p1")
            world.finish(listing(emails))
            show(properties)
            world.settle()
        }

        function choose(row: int) {
            const picker = find("projectPicker")
            mouseClick(picker)
            tryVerify(() => picker.popup.opened)
            mouseClick(picker.popup.contentItem.itemAtIndex(row))
            world.settle()
            tryVerify(() => !picker.popup.visible)
        }

        function type(field: string, text: string) {
            mouseClick(find(field))
            for (const character of text)
                keyClick(character)
        }

        // The titles of the sections, from top to bottom.
        function headings(): var {
            const found = []
            const collect = item => {
                if (item instanceof ListHeading && item.visible)
                    found.push(item)
                for (let index = 0; index < item.children.length; ++index)
                    collect(item.children[index])
            }
            collect(find("list"))
            return found.sort((a, b) => placeOf(a).y - placeOf(b).y)
        }

        function shownContent(): string {
            return ["noProject", "loading", "noAccounts", "list"].filter(name => isShown(name)).join()
        }

        function test_opensOnTheActiveProjectAndDiscoversAtOnce() {
            world.signIn("a@x", "p1")
            world.expect("listServiceAccounts", "p1")
            show()
            world.settle()

            compare(shown.selectedProjectId, "p1")
            verify(shown.isLoadingAccounts)
            compare(shownContent(), "loading")
            compare(text("loadingText"), "Loading service accounts...")
            verify(isShown("progress"))
            world.finish(listing(["b@x"]))
            compare(shownContent(), "list")
        }

        function test_withoutAnActiveProjectItAsksForOne() {
            show()
            world.settle()

            compare(shown.selectedProjectId, "")
            compare(shownContent(), "noProject")
            compare(text("noProject/title"), "Select a Project")
            compare(text("noProject/description"), "Choose a project to manage its service accounts")
            compare(find("noProject").symbolName, "folder")
            compare(world.commands, 0)
        }

        function test_theProjectPickerListsNoneAndEveryProject() {
            world.list(["p1", "p2"])
            show()
            const picker = find("projectPicker")

            compare(text("projectLabel"), "Project:")
            compare(find("projectLabel").textStyle, Typography.callout)
            compare(picker.count, 3)
            compare([0, 1, 2].map(row => picker.textAt(row)),
                    ["Select a project"].concat(world.stateManager.projectIds))
            compare(picker.displayText, "Select a project")
            compare(picker.Accessible.name, "Project")
        }

        function test_choosingAProjectDiscovers() {
            world.list(["p1", "p2"])
            show()
            world.settle()
            const id = world.stateManager.projectIds[1]
            world.expect("listServiceAccounts", id)
            choose(2)

            compare(shown.selectedProjectId, id)
            compare(find("projectPicker").displayText, id)
            compare(shownContent(), "loading")
            world.finish(listing(["b@x"]))
            tryVerify(() => isShown("b@x"))
        }

        function test_choosingNoneAsksForAProject() {
            world.list(["p1"])
            showFound(["b@x"])
            choose(0)

            compare(shown.selectedProjectId, "")
            compare(shownContent(), "noProject")
        }

        function test_anActiveProjectThatIsNotListedIsShownAllTheSame() {
            showFound([])

            compare(find("projectPicker").displayText, "p1")
            compare(find("projectPicker").currentIndex, -1)
        }

        function test_theChoiceSurvivesANewListOfProjects() {
            world.list(["p1", "p2"])
            showFound([])
            world.list(["a", "p2", "p1", "z"])

            compare(find("projectPicker").displayText, "p1")
            compare(find("projectPicker").textAt(find("projectPicker").currentIndex), "p1")
        }

        function test_theModePickerHasAllModes() {
            show()
            const picker = find("modePicker")

            compare(picker.label, "Mode")
            compare(picker.model, ["ADC Only", "CLI Only", "Both"])
            compare(picker.currentIndex, 0)
        }

        function test_theModesAreReadable() {
            show()
            const segments = everyOne(find("modePicker"), item => item instanceof Segment)

            compare(segments.length, 3)
            for (const segment of segments)
                verify(!segment.contentItem.truncated)
        }

        function everyOne(item: Item, isWanted: var): var {
            return Array.from(item.children).reduce((found, child) => found.concat(
                isWanted(child) ? [child] : everyOne(child, isWanted)), [])
        }

        function test_measures() {
            showFound(["b@x"])

            verify(find("projectPicker").width <= 300)
            verify(find("modePicker").width <= 250)
            compare(gapBelow(find("topBar"), find("topDivider")), 0)
            compare(gapBelow(find("topDivider"), find("content")), 0)
            compare(gapBelow(find("content"), find("bottomDivider")), 0)
            compare(gapBelow(find("bottomDivider"), find("addForm")), 0)
            const form = placeOf(find("addForm"))
            compare(form.y + form.height, 400)
            compare(find("labelField").width, 150)
            verify(find("emailField").framed && find("labelField").framed)
            compare(gapAfter(find("emailField"), find("labelField")), 8)
            compare(gapAfter(find("labelField"), find("addButton")), 8)
            compare(find("content").height, find("list").height)
        }

        function test_theBarsFit_data() {
            return [{ tag: "480", width: 480 }, { tag: "600", width: 600 }, { tag: "1920", width: 1920 }]
        }

        function test_theBarsFit(row) {
            world.list(["a-project-with-a-long-name-indeed"])
            show({ width: row.width })
            const mode = placeOf(find("modePicker"))

            verify(mode.x + mode.width <= row.width - 12)
            verify(find("projectPicker").width >= 80)
            verify(find("projectPicker").width <= 300)
            if (row.width === 1920)
                compare(find("projectPicker").width, 300)
            verify(gapAfter(find("projectLabel"), find("projectPicker")) >= 8)
            verify(find("emailField").width >= 160)
        }

        function test_anEmptyDiscoveryTellsOfPermissions() {
            showFound([])

            verify(shown.discoveryFailed)
            compare(shownContent(), "noAccounts")
            compare(text("noAccounts/title"), "No Service Accounts Found")
            compare(find("noAccounts").symbolName, "person.badge.key")
            compare(text("noAccounts/description"), emptyDescriptions.failed)
        }

        function test_aFailedDiscoveryTellsOfPermissionsAndLeavesNoError() {
            world.signIn("a@x", "p1")
            world.expect("listServiceAccounts", "p1")
            world.fail("denied")
            show()
            world.settle()

            compare(text("noAccounts/description"), emptyDescriptions.failed)
            verify(!world.stateManager.hasError)
        }

        function test_beforeADiscoveryHasBegunThereAreJustNone() {
            world.signIn("a@x", "p1")
            world.expect("listServiceAccounts", "p1")
            shown = createTemporaryObject(viewComponent, stage, { stateManager: world.stateManager })
            verify(!shown.discoveryFailed)
            compare(text("noAccounts/description"), emptyDescriptions.none)
            world.settle()
            world.finish(listing(["b@x"]))
        }

        function test_aSavedAccountIsShownThoughTheDiscoveryFailed() {
            world.saveAccount("p1", "s@x")
            showFound([])

            verify(shown.discoveryFailed)
            compare(shownContent(), "list")
            verify(isShown("s@x"))
        }

        function test_sectionsAreSavedAndDiscovered() {
            world.saveAccount("p1", "s@x", "Deployer")
            showFound(["b@x"])

            const titles = headings()
            compare(titles.map(title => title.text), ["Saved", "Discovered from GCP"])
            const tops = [titles[0], find("s@x"), titles[1], find("b@x")].map(item => placeOf(item).y)
            compare(tops, tops.slice().sort((a, b) => a - b))
            compare(new Set(tops).size, 4)
            compare(find("title", titles[0]).Accessible.role, Accessible.Heading)
        }

        function test_aSectionWithoutAccountsHasItsTitle_data() {
            return [{ tag: "saved only", saved: ["s@x"], found: [] },
                    { tag: "discovered only", saved: [], found: ["b@x"] }]
        }

        function test_aSectionWithoutAccountsHasItsTitle(row) {
            row.saved.forEach(email => world.saveAccount("p1", email))
            showFound(row.found)
            const titles = headings()
            compare(titles.map(title => title.text), ["Saved", "Discovered from GCP"])
            verify(placeOf(titles[0]).y >= placeOf(find("list")).y)
            verify(placeOf(titles[1]).y > placeOf(titles[0]).y)
        }

        function test_aRowTellsEmailAndDisplayName() {
            world.saveAccount("p1", "s@x", "Deployer")
            world.saveAccount("p1", "bare@x")
            world.saveAccount("p1", "empty@x", "")
            showFound(["b@x"])

            compare(text("s@x/email"), "s@x")
            compare(find("s@x/email").weight, Font.Medium)
            verify(isShown("s@x/displayName"))
            compare(text("s@x/displayName"), "Deployer")
            compare(find("s@x/displayName").textStyle, Typography.caption)
            compare(find("s@x/displayName").color, colors.secondary)
            verify(placeOf(find("s@x/displayName")).y > placeOf(find("s@x/email")).y)
            verify(!isShown("bare@x/displayName"))
            verify(!isShown("empty@x/displayName"))
            compare(text("b@x/displayName"), "Name of b@x")
        }

        function test_eachRowHasItsButtons() {
            world.saveAccount("p1", "s@x")
            showFound(["b@x"])

            for (const email of ["s@x", "b@x"]) {
                compare(text(email + "/impersonateButton"), "Impersonate")
                verify(find(email + "/impersonateButton").small)
            }
            verify(isShown("s@x/removeButton") && !isShown("s@x/saveButton"))
            verify(find("s@x/removeButton").destructive)
            compare(find("s@x/removeButton").symbolName, "trash")
            verify(isShown("b@x/saveButton") && !isShown("b@x/removeButton"))
            compare(find("b@x/saveButton").symbolName, "star")
            compare(find("b@x/saveButton").help, "Save for quick access")
            const place = placeOf(find("b@x/saveButton"))
            compare(place.x + place.width, 600 - 12)
        }

        function test_theStarTellsWhatItDoes() {
            showFound(["b@x"])
            mouseMove(find("b@x/saveButton"))

            tryVerify(() => find("b@x/saveButton/helpTip").visibleNow)
        }

        function test_impersonateUsesTheChosenMode_data() {
            return [
                { tag: "ADC Only", index: 0, commands: ["adcLoginWithImpersonation"] },
                { tag: "CLI Only", index: 1, commands: ["setImpersonation"] },
                { tag: "Both", index: 2, commands: ["setImpersonation", "adcLoginWithImpersonation"] },
            ]
        }

        function test_impersonateUsesTheChosenMode(row) {
            showFound(["b@x"])
            const modes = find("modePicker")
            const segment = modes.width / 3
            mouseClick(modes, modes.width - (2.5 - row.index) * segment * 0.8, modes.height / 2)
            compare(shown.selectedMode, row.index)
            row.commands.forEach(command => world.expect(command, "b@x"))
            press("b@x/impersonateButton")
            row.commands.forEach(() => {
                world.finish()
                world.settle()
            })
        }

        function test_savedAccountsAreImpersonatedToo() {
            world.saveAccount("p1", "s@x")
            showFound([])
            world.expect("adcLoginWithImpersonation", "s@x")
            press("s@x/impersonateButton")
            world.fail("no")

            verify(world.stateManager.hasError)
            compare(shownContent(), "list")
        }

        function test_savingADiscoveredAccountMovesItToSaved() {
            showFound(["b@x", "c@x"])
            press("c@x/saveButton")

            compare(world.saved("p1"), [{ email: "c@x", displayName: "Name of c@x" }])
            tryVerify(() => isShown("c@x/removeButton"))
            verify(placeOf(find("c@x")).y < placeOf(find("b@x")).y)
            compare(find("list").count, 2)
        }

        function test_removingASavedAccountAsksForNothing() {
            world.saveAccount("p1", "s@x")
            showFound([])
            press("s@x/removeButton")

            compare(world.saved("p1"), [])
            compare(shownContent(), "noAccounts")
        }

        function test_anAccountThatIsSavedIsListedOnce() {
            world.saveAccount("p1", "b@x")
            showFound(["b@x"])

            compare(find("list").count, 1)
            verify(isShown("b@x/removeButton"))
            verify(!shown.discoveryFailed)
        }

        function test_addNeedsAnEmailAndAProject() {
            world.list(["p1"])
            show()
            world.settle()
            verify(!find("addButton").enabled)
            type("emailField", "n@x")
            verify(!find("addButton").enabled)
            world.expect("listServiceAccounts", "p1")
            choose(1)
            world.finish("[]")
            verify(find("addButton").enabled)
            find("emailField").selectAll()
            mouseClick(find("emailField"))
            keyClick(Qt.Key_A, Qt.ControlModifier)
            keyClick(Qt.Key_Delete)

            verify(!find("addButton").enabled)
        }

        function test_addSavesWhatWasTypedAndClearsTheFields() {
            showFound([])
            compare(text("emailField/placeholder"), "Service account email")
            compare(text("labelField/placeholder"), "Label (optional)")
            compare(text("addButton"), "Add")
            type("emailField", " n@x ")
            type("labelField", "New")
            press("addButton")

            compare(world.saved("p1"), [{ email: " n@x ", displayName: "New" }])
            compare(shown.newEmail, "")
            compare(shown.newDisplayName, "")
            compare(text("emailField"), "")
            compare(text("labelField"), "")
            verify(!find("addButton").enabled)
            tryVerify(() => isShown(" n@x /removeButton"))
            compare(text(" n@x /displayName"), "New")
        }

        function test_anEmptyLabelIsNone() {
            showFound([])
            type("emailField", "n@x")
            press("addButton")

            compare(world.saved("p1"), [{ email: "n@x", displayName: null }])
            tryVerify(() => isShown("n@x"))
            verify(!isShown("n@x/displayName"))
        }

        function test_returnAdds() {
            showFound([])
            type("emailField", "n@x")
            keyClick(Qt.Key_Return)
            compare(world.saved("p1").length, 1)
            keyClick(Qt.Key_Return)

            compare(world.saved("p1").length, 1)
        }

        function test_ofOverlappingDiscoveriesTheLastToFinishWins() {
            world.list(["p1", "p2"])
            world.signIn("a@x", "p1")
            world.expect("listServiceAccounts", "p1")
            show()
            world.settle()
            world.expect("listServiceAccounts", "p2")
            choose(world.stateManager.projectIds.indexOf("p2") + 1)
            world.finishNewest(listing(["second@x"]))
            tryVerify(() => isShown("second@x"))
            world.finish(listing(["first@x"]))

            tryVerify(() => isShown("first@x"))
            compare(find("list").count, 1)
            compare(shown.selectedProjectId, "p2")
        }

        function test_thePageMayGoWhileADiscoveryRuns() {
            world.signIn("a@x", "p1")
            world.expect("listServiceAccounts", "p1")
            show()
            world.settle()
            shown.destroy()
            shown = null
            wait(0)
            world.finish(listing(["b@x"]))
        }

        function test_fiveHundredAccountsCostWhatIsOnScreen() {
            const emails = []
            for (let number = 0; number < 500; ++number)
                emails.push("account-" + number + "@x")
            showFound(emails)

            compare(find("list").count, 500)
            verify(isShown("account-0@x"))
            compare(find("account-499@x"), null)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Tab)
            verify(find("account-0@x").visualFocus)
            keyClick(Qt.Key_End)
            verify(find("account-499@x").visualFocus)
            keyClick(Qt.Key_PageUp)
            verify(find("account-489@x").visualFocus)
        }

        function test_longEmailsAreShortenedAndToldInAToolTip() {
            const email = "e".repeat(200) + "@example.com"
            showFound([email], { width: 480 })

            verify(find(email + "/email").truncated)
            verify(gapAfter(find(email + "/email"), find(email + "/impersonateButton")) >= 12)
            mouseMove(find(email + "/email"))
            tryVerify(() => find(email + "/email").toolTipShown)
        }

        function test_theKeyboardReachesEverything() {
            world.saveAccount("p1", "s@x")
            showFound(["b@x"])
            type("emailField", "n@x")
            shown.forceActiveFocus()
            const reached = []
            for (let step = 0; step < 12; ++step) {
                keyClick(Qt.Key_Tab)
                for (const name of ["projectPicker", "s@x", "s@x/impersonateButton", "s@x/removeButton",
                                    "emailField", "labelField", "addButton"]) {
                    if (find(name).activeFocus && !reached.includes(name))
                        reached.push(name)
                }
            }

            compare(reached, ["projectPicker", "s@x", "s@x/impersonateButton", "s@x/removeButton",
                              "emailField", "labelField", "addButton"])
        }

        function test_theKeyboardSavesAndGoesOnAtTheNextRow() {
            showFound(["b@x", "c@x"])
            find("list").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Tab)
            verify(find("b@x/saveButton").visualFocus)
            keyClick(Qt.Key_Space)

            compare(world.saved("p1").length, 1)
            tryVerify(() => find("c@x").visualFocus)
        }

        function test_whenTheLastAccountGoesTheKeyboardGoesToTheForm() {
            world.saveAccount("p1", "s@x")
            showFound([])
            find("list").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Tab)
            verify(find("s@x/removeButton").visualFocus)
            keyClick(Qt.Key_Space)

            compare(shownContent(), "noAccounts")
            tryVerify(() => find("emailField").activeFocus)
        }

        function test_assistiveTechnologyReadsRowsAndButtons() {
            world.saveAccount("p1", "s@x", "Deployer")
            showFound(["b@x"])

            compare(find("list").Accessible.role, Accessible.List)
            compare(find("list").Accessible.name, "Service Accounts")
            compare(find("s@x").Accessible.role, Accessible.ListItem)
            compare(find("s@x").Accessible.name, "s@x")
            compare(find("s@x").Accessible.description, "Deployer, saved, 1 of 2")
            compare(find("b@x").Accessible.description, "Name of b@x, discovered, 2 of 2")
            compare(find("s@x/removeButton").Accessible.name, "Remove")
            compare(find("s@x/removeButton").Accessible.description, "s@x")
            compare(find("b@x/saveButton").Accessible.name, "Save for quick access")
            compare(find("modePicker").Accessible.name, "Mode")
        }

        function middleOf(item: Item): real {
            const place = placeOf(item)
            return place.y + place.height / 2
        }

        function test_partsOfRowsAndBarsStandInTheirMiddle() {
            world.saveAccount("p1", "s@x", "Deployer")
            showFound(["b@x"])

            for (const [row, parts] of [["s@x", ["texts", "impersonateButton", "removeButton"]],
                                        ["b@x", ["texts", "impersonateButton", "saveButton"]],
                                        ["topBar", ["projectLabel", "projectPicker", "modePicker"]],
                                        ["addForm", ["emailField", "labelField", "addButton"]]]) {
                for (const part of parts)
                    fuzzyCompare(middleOf(find(row + "/" + part)), middleOf(find(row)), 0.5, row + "/" + part)
            }
        }

        function test_theKeyboardReadsALongEmailInFull() {
            const email = "e".repeat(200) + "@example.com"
            world.saveAccount("p1", email, "d".repeat(200))
            showFound([])
            verify(find(email + "/displayName").truncated)
            find("list").forceActiveFocus(Qt.TabFocusReason)
            tryVerify(() => find(email).visualFocus)

            tryVerify(() => find(email + "/email").toolTipShown)
            tryVerify(() => find(email + "/displayName").toolTipShown)
        }

        function test_barsAndDividersAreAsWideAsThePage() {
            showFound(["b@x"])

            for (const name of ["topBar", "topDivider", "content", "list", "bottomDivider", "addForm"])
                compare(find(name).width, 600, name)
            compare(placeOf(find("projectLabel")).x, 12)
            compare(placeOf(find("emailField")).x, 12)
            const add = placeOf(find("addButton"))
            compare(add.x + add.width, 600 - 12)
        }

        function test_whatFillsThePageStandsInItsMiddle() {
            world.signIn("a@x", "p1")
            world.expect("listServiceAccounts", "p1")
            show()
            world.settle()
            const middle = () => middleOf(find("content"))
            for (const part of ["progress", "loadingText"])
                fuzzyCompare(placeOf(find(part)).x + find(part).width / 2, 300, 0.5, part)
            fuzzyCompare(middleOf(find("loading")), middle(), 0.5)
            verify(placeOf(find("loadingText")).y > placeOf(find("progress")).y)
            world.finish("[]")
            compare(shownContent(), "noAccounts")

            choose(0)
            for (const panel of ["noAccounts", "noProject"]) {
                fuzzyCompare(middleOf(find(panel)), middle(), 0.5, panel)
                compare(placeOf(find(panel)).x, 24, panel)
                compare(find(panel).width, 600 - 48, panel)
            }
        }

        function test_theFieldsAreBoundToWhatIsTyped() {
            show({ newEmail: "n@x", newDisplayName: "New" })

            compare(text("emailField"), "n@x")
            compare(text("labelField"), "New")
        }

        function test_returnInTheLabelAddsToo() {
            showFound([])
            type("labelField", "New")
            keyClick(Qt.Key_Return)
            compare(world.saved("p1"), [], "not without an e-mail")
            type("emailField", "n@x")
            mouseClick(find("labelField"))
            keyClick(Qt.Key_Return)

            compare(world.saved("p1"), [{ email: "n@x", displayName: "New" }])
        }

        function test_assistiveTechnologyReadsAndPressesEveryControl() {
            showFound(["b@x"])

            compare(find("emailField").Accessible.name, "Service account email")
            compare(find("labelField").Accessible.name, "Label (optional)")
            compare(find("addButton").Accessible.name, "Add")
            compare(find("b@x/impersonateButton").Accessible.name, "Impersonate")
            compare(find("b@x/impersonateButton").Accessible.description, "b@x")
            world.expect("adcLoginWithImpersonation", "b@x")
            find("b@x/impersonateButton").Accessible.pressAction()
            world.settle()
            world.fail("")
            find("b@x/saveButton").Accessible.pressAction()
            compare(world.saved("p1").length, 1)
        }

        function test_aLongDisplayNameIsShortenedInItsRow() {
            world.saveAccount("p1", "s@x", "d".repeat(200))
            world.saveAccount("p1", "e".repeat(200))
            showFound([])

            compare(gapAfter(find("s@x/displayName"), find("s@x/impersonateButton")), 12)
            compare(gapAfter(find("e".repeat(200) + "/email"), find("e".repeat(200) + "/impersonateButton")), 12)
            compare(find("s@x/email").elide, Text.ElideMiddle)
        }

        function test_theTitlesOfTheSectionsAreDrawn() {
            world.saveAccount("p1", "s@x")
            showFound(["b@x"])

            compare(headings().map(heading => find("title", heading).text), ["Saved", "Discovered from GCP"])
        }
    }
}
