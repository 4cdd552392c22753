// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

Item {
    width: 400
    height: 700

    Component {
        id: viewComponent

        ProjectSwitcherView {
            width: 376
        }
    }

    ViewTest {
        id: test

        name: "ProjectSwitcherView"
        view: viewComponent

        // The rows from top to bottom, as in "[All Projects] a *": title, star, id, mark.
        function rows(): var {
            const items = []
            const area = find("rows")
            for (let index = 0; index < area.children.length; ++index) {
                const item = area.children[index]
                if (item.visible && item.projectId !== undefined && item.rowY !== undefined)
                    items.push(item)
            }
            return items.sort((one, other) => one.y - other.y).map(describe)
        }

        function describe(item: Item): string {
            const row = find(item.projectId, item)
            const title = isShown("groupTitle", item) ? "[" + find("groupTitle", item).children[0].text + "] " : ""
            return title + (isShown("star", row) ? "★ " : "") + text("text", row)
                + (isShown("badge", row) ? " *" : "")
        }

        function type(text: string) {
            find("filter/field").forceActiveFocus()
            for (const character of text)
                keyClick(character)
        }

        function test_header() {
            show()

            compare(find("header").title, "Projects")
            compare(text("header/title"), "PROJECTS")
            compare(find("header").icon, "folder")
        }

        function test_theFilterAppearsWithTheSixthProject() {
            world.list(["1", "2", "3", "4", "5"])
            show()
            verify(!isShown("filter"))
            world.list(["1", "2", "3", "4", "5", "6"])

            verify(isShown("filter"))
            compare(find("filter").placeholder, "Filter projects...")
            tryCompare(find("filter"), "y", find("header").height + 4)
            compare(find("filter").x, 4)
            compare(find("filter").width, 368)
            verify(!find("filter/field").activeFocus)
        }

        function test_withNothingPinnedOrRecentThereAreNoTitles() {
            world.list(["a", "b"])
            show()

            compare(rows(), ["a", "b"])
        }

        function test_groupsStandInTheirOrderWithTheirTitles() {
            world.pinned = ["c"]
            world.recents = ["e", "a", "c"]
            world.list(["a", "b", "c", "d", "e"])
            show()

            compare(rows(), ["★ c", "[Recently Used] e", "a", "[All Projects] b", "d"])
        }

        function test_onePinnedProjectPutsATitleAboveTheOthers() {
            world.pinned = ["b"]
            world.list(["a", "b"])
            show()

            compare(rows(), ["★ b", "[All Projects] a"])
        }

        function test_theActiveProjectIsMarkedWhereverItStands_data() {
            return [
                { tag: "pinned", id: "p", rows: ["★ p *", "[Recently Used] r", "[All Projects] o"] },
                { tag: "recent", id: "r", rows: ["★ p", "[Recently Used] r *", "[All Projects] o"] },
                { tag: "other", id: "o", rows: ["★ p", "[Recently Used] r", "[All Projects] o *"] },
            ]
        }

        function test_theActiveProjectIsMarkedWhereverItStands(data) {
            world.pinned = ["p"]
            world.recents = ["r"]
            world.configure({ project: data.id })
            world.list(["o", "p", "r"])
            show()

            compare(rows(), data.rows)
            const row = find("rows/" + data.id)
            compare(row.background.color, Qt.alpha(colors.accent, 0.08))
            compare(row.background.radius, 4)
            compare(text("badge", row), "active")
            compare(find("badge", row).color, colors.green)
            compare(find("rows/" + (data.id === "o" ? "r" : "o")).background.color, Qt.color("transparent"))
        }

        function test_anEmptyListSaysSoOnceItIsLoaded() {
            world.expect("listProjects")
            show()
            verify(isShown("empty"))
            compare(text("empty"), "No projects found")
            compare(find("empty").textStyle, Typography.callout)
            compare(find("empty").color, colors.secondary)
            compare(find("empty").x, 8)
            world.stateManager.reload()
            world.settle()
            verify(!isShown("empty"), "not while it loads")
            compare(rows(), [])
            world.finish("[]")

            verify(isShown("empty"))
        }

        function test_aFilterWithoutHitsShowsNothingAtAll() {
            world.listNumbered(6)
            show()
            type("nowhere")

            compare(rows(), [])
            verify(!isShown("empty"))
            verify(isShown("filter"))
        }

        function test_filteringLooksForIdAndNameWhateverTheCase_data() {
            return [
                { tag: "id, in capitals", query: "EB-PR", rows: ["web-prod"] },
                { tag: "name, in mixed case", query: "bIlLiNg x", rows: ["data-1"] },
                { tag: "both", query: "F", rows: ["four", "five"] },
                { tag: "a space", query: " ", rows: ["data-1"] },
            ]
        }

        function test_filteringLooksForIdAndNameWhateverTheCase(data) {
            world.list(["web-prod", "data-1", "one", "two", "four", "five"],
                       { "web-prod": "", "data-1": "Billing Xport", one: "", two: "", four: "", five: "FOUND" })
            show()
            type(data.query)

            compare(shown.searchText, data.query)
            compare(rows(), data.rows)
        }

        function test_groupsAreThoseOfTheFilteredProjects() {
            world.pinned = ["prod-1"]
            world.recents = ["dev-1"]
            world.list(["prod-1", "dev-1", "dev-2", "x", "y", "z"])
            show()
            type("dev-2")

            compare(rows(), ["dev-2"])
        }

        function test_clearingTheFilterBringsAllBack() {
            world.listNumbered(6)
            show()
            type("3")
            compare(rows().length, 1)
            press("filter/clearButton")

            compare(rows().length, 6)
            compare(shown.searchText, "")
        }

        function test_aSwitchKeepsTheSearchText() {
            world.listNumbered(6)
            show()
            type("0000")
            world.expect("setProject", "project-00002")
            press("rows/project-00002")
            world.configure({ project: "project-00002" })
            world.finish()

            compare(shown.searchText, "0000")
            compare(rows()[0], "[Recently Used] project-00002 *")
        }

        function test_aClickSwitchesAndTheMarkFollowsTheState() {
            world.configure({ project: "a" })
            world.list(["a", "b"])
            show()
            world.expect("setProject", "b")
            press("rows/b")
            compare(rows(), ["a *", "b"])
            world.configure({ project: "b" })
            world.finish()

            compare(rows(), ["[Recently Used] b *", "[All Projects] a"])
            compare(world.recents, ["b"])
        }

        function test_aFailedSwitchChangesNothing() {
            world.configure({ project: "a" })
            world.list(["a", "b"])
            show()
            world.expect("setProject", "b")
            press("rows/b")
            world.fail("no")

            compare(rows(), ["a *", "b"])
            compare(world.recents, [])
        }

        function test_aClickAnywhereOnARowSwitches_data() {
            return [{ tag: "text", x: 20 }, { tag: "end", x: 374 }, { tag: "edge", x: 1 }]
        }

        function test_aClickAnywhereOnARowSwitches(data) {
            world.list(["a"])
            show()
            world.expect("setProject", "a")
            mouseClick(find("rows/a"), data.x, 1)
            world.settle()
            world.fail("")
        }

        function test_aPressThatTheListMovedAwayFromSwitchesNothing() {
            world.list(["a", "b", "c"])
            show()
            const row = find("rows/b")
            mousePress(row)
            world.list(["x", "y", "z"])
            mouseRelease(row)
            world.settle()

            compare(world.commands, 2, "only the two listings")
        }

        function test_theMenuPinsAndUnpins() {
            world.list(["a", "b"])
            show()
            mouseClick(find("rows/b"), 5, 5, Qt.RightButton)
            tryVerify(() => menu().opened)
            compare(menu().count, 1)
            compare(menu().itemAt(0).text, "Pin")
            mouseClick(menu().itemAt(0))
            compare(world.pinned, ["b"])
            compare(rows(), ["★ b", "[All Projects] a"])

            tryVerify(() => !menu().visible)
            mouseClick(find("rows/b"), 5, 5, Qt.RightButton)
            tryVerify(() => menu().opened)
            compare(menu().itemAt(0).text, "Unpin")
            mouseClick(menu().itemAt(0))
            compare(world.pinned, [])
            compare(rows(), ["a", "b"])
            compare(world.commands, 1, "only the listing")
        }

        function test_theMenuOpensWhereTheClickWasAndNothingIsSwitched() {
            world.list(["a", "b"])
            show()
            compare(menu(), null, "not made before it is asked for")
            mouseClick(find("rows/b"), 100, 10, Qt.RightButton)
            tryVerify(() => menu().opened)

            const place = menu().contentItem.mapToItem(find("rows/b"), 0, 0)
            compare(place.x, 100 + menu().padding)
            compare(place.y, 10 + menu().padding)
            compare(world.commands, 1, "only the listing")
        }

        function menu(): var {
            return find("rows").menu
        }

        function test_theMenuKeyOpensTheRowsMenu_data() {
            return [{ tag: "Menu", key: Qt.Key_Menu, modifiers: Qt.NoModifier },
                    { tag: "Shift+F10", key: Qt.Key_F10, modifiers: Qt.ShiftModifier }]
        }

        function test_theMenuKeyOpensTheRowsMenu(data) {
            world.list(["a", "b", "c", "d"])
            show()
            shown.rows.focusRow(2)
            keyClick(data.key, data.modifiers)
            tryVerify(() => menu().opened)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)

            compare(world.pinned, ["c"])
            tryVerify(() => !menu().visible)
            tryVerify(() => find("rows/b").visualFocus, 5000, "the keyboard stays where it is")
        }

        function test_aMenuThatIsLeftGivesTheKeyboardBack() {
            world.list(["a", "b"])
            show()
            shown.rows.focusRow(1)
            keyClick(Qt.Key_Menu)
            tryVerify(() => menu().opened)
            keyClick(Qt.Key_Escape)

            tryVerify(() => find("rows/b").visualFocus)
            compare(world.pinned, [])
        }

        function test_measuresOfARow() {
            world.pinned = ["a"]
            world.configure({ project: "a" })
            world.list(["a", "b"])
            show()

            const active = find("rows/a"), plain = find("rows/b")
            compare(find("star", active).name, "star.fill")
            compare(find("star", active).color, colors.yellow)
            compare(find("star", active).size, Typography.caption.pixelSize)
            compare(gapAfter(find("star", active), find("text", active)), 6)
            compare(placeOf(find("star", active), active).x, 8)
            compare(insets(find("badge", active), active).slice(1), [4, 8, 4])
            compare(find("text", plain).textStyle, Typography.body)
            compare(insets(find("text", plain), plain).slice(0, 2), [8, 4])
            compare(plain.height, find("text", plain).height + 8)
            compare(plain.width, 376)
            verify(!isShown("star", plain))
        }

        function test_measuresBetweenRows() {
            world.pinned = ["a", "b"]
            world.recents = ["c"]
            world.configure({ project: "b" })
            world.list(["a", "b", "c", "d"])
            show()

            compare(gapBelow(find("header"), find("rows/a")), 4)
            compare(gapBelow(find("rows/a"), find("rows/b")), 4)
            const title = find("groupTitle", find("rows/c").parent)
            compare(gapBelow(find("rows/b"), title), 4)
            compare(title.text, "Recently Used")
            const words = title.children[0]
            compare(words.textStyle, Typography.caption)
            compare(words.color, colors.tertiary)
            compare([words.leftPadding, words.topPadding], [8, 2])
            compare(title.height, words.height)
            compare(title.height, Math.ceil(words.contentHeight) + 2)
            compare(gapBelow(title, find("rows/c")), 4)
            compare(gapBelow(find("rows/c"), find("groupTitle", find("rows/d").parent)), 4)
            compare(find("rows").height, placeOf(find("rows/d"), find("rows")).y + find("rows/d").height)
        }

        function test_theFilterStandsBetweenHeaderAndRows() {
            world.listNumbered(6)
            show()

            compare(gapBelow(find("header"), find("filter")), 4)
            compare(gapBelow(find("filter"), find("rows/project-00001")), 4)
        }

        function test_aLongIdIsShortenedAtItsEnd() {
            const id = "p".repeat(90)
            world.pinned = [id]
            world.configure({ project: id })
            world.list([id])
            show()

            const label = find("rows/" + id + "/text")
            verify(label.truncated)
            compare(label.elide, Text.ElideRight)
            compare(label.lineCount, 1)
            verify(gapAfter(label, find("rows/" + id + "/badge")) >= 12)
        }

        function toolTipOf(id: string): var {
            return find("rows/" + id).hint()
        }

        function test_toolTipsTellTheNameAndWhatIsShortened() {
            const id = "p".repeat(90)
            world.list([id, "short", "same"], { [id]: "Long one", short: "Short one", same: "same" })
            show()

            compare(toolTipOf(id), id + "\nLong one")
            compare(toolTipOf("short"), "Short one")
            compare(toolTipOf("same"), "")
            const row = find("rows/short")
            verify(!row.toolTipShown)
            mouseMove(row)
            tryVerify(() => row.toolTipShown)
            mouseMove(find("rows/same"))
            tryVerify(() => !row.toolTipShown)
            verify(!find("rows/same").toolTipShown)
        }

        function test_theToolTipAlsoComesForTheKeyboard() {
            world.list(["a"])
            show()
            shown.rows.focusRow(0)

            tryVerify(() => find("rows/a").toolTipShown)
        }

        function test_noToolTipStandsBesideAMenu() {
            world.list(["a"])
            show()
            mouseMove(find("rows/a"))
            tryVerify(() => find("rows/a").toolTipShown)
            mouseClick(find("rows/a"), undefined, undefined, Qt.RightButton)
            tryVerify(() => menu().opened)

            verify(!find("rows/a").toolTipShown)
            menu().close()
            tryVerify(() => !menu().visible)
        }

        function test_assistiveTechnologyReadsRowsWithTheirPlace() {
            world.pinned = ["b"]
            world.configure({ project: "b" })
            world.list(["a", "b"], { a: "a", b: "Bee" })
            show()

            const row = find("rows/b")
            compare(row.Accessible.role, Accessible.Button)
            compare(row.Accessible.name, "b")
            compare(row.Accessible.description, "Bee, pinned, active, 1 of 2")
            verify(row.Accessible.selected)
            compare(find("rows/a").Accessible.description, "2 of 2")
            world.expect("setProject", "a")
            find("rows/a").Accessible.pressAction()
            world.settle()
            world.fail("")
        }

        function test_theKeyboardGoesThroughTheRowsWithOneStop() {
            world.list(["a", "b", "c", "d", "e", "f"])
            show()
            keyClick(Qt.Key_Tab)
            verify(find("filter/field").activeFocus)
            keyClick(Qt.Key_Tab)
            verify(find("rows/a").visualFocus)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Down)
            verify(find("rows/c").visualFocus)
            keyClick(Qt.Key_Up)
            world.expect("setProject", "b")
            keyClick(Qt.Key_Return)
            world.settle()
            world.fail("")
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            verify(find("filter/field").activeFocus)
            keyClick(Qt.Key_Tab)
            verify(find("rows/b").visualFocus)
            keyClick(Qt.Key_Tab)
            verify(!shown.rows.activeFocus)
        }

        function test_theKeyboardStaysWhenRowsComeAndGo() {
            world.list(["a", "b", "c", "d"])
            show()
            shown.rows.focusRow(2)
            world.list(["a", "c", "d"])
            verify(find("rows/c").visualFocus)
            world.list(["x", "y", "a", "c"])
            verify(find("rows/c").visualFocus)
            world.list(["x", "y", "a"])
            verify(find("rows/a").visualFocus)
            world.stateManager.togglePin("x")
            verify(find("rows/a").visualFocus)
        }

        function itemCount(): int {
            return find("rows/repeater").count
        }

        function test_thousandsOfProjectsHaveTheItemsThatAreOnScreen() {
            world.listNumbered(10000)
            show({ viewportHeight: 600 })

            verify(itemCount() <= 2 * Math.ceil(600 / 30), itemCount())
            verify(find("rows/project-00001"))
            compare(find("rows/project-09000"), null)
            shown.viewportY = find("rows").y + find("rows").height - 600
            verify(find("rows/project-10000"))
            verify(itemCount() <= 2 * Math.ceil(600 / 30), itemCount())
            const last = find("rows/project-10000")
            compare(placeOf(last, find("rows")).y + last.height, find("rows").height)
        }

        function test_aFarJumpOfTheKeyboardFindsItsRow() {
            world.listNumbered(10000)
            show({ viewportHeight: 600 })
            shown.rows.focusRow(9000)
            verify(find("rows/project-09001").visualFocus)
            keyClick(Qt.Key_PageDown)
            verify(find("rows/project-09011").visualFocus)
            keyClick(Qt.Key_PageUp)
            keyClick(Qt.Key_Up)
            verify(find("rows/project-09000").visualFocus)
            shown.viewportY = 0
            verify(find("rows/project-09000").visualFocus, "also when it is scrolled away")
        }

        function test_rowsAreDrawnFromTopToBottomInTheirOrder() {
            world.listNumbered(200)
            show({ viewportHeight: 300 })
            for (const y of [0, 500, 2000, 800, 4000, 0]) {
                shown.viewportY = y
                const area = find("rows")
                let before = -1
                for (let index = 0; index < area.children.length; ++index) {
                    const item = area.children[index]
                    if (item.rowY === undefined)
                        continue
                    verify(item.y > before, "assistive technology reads them in this order")
                    before = item.y
                }
            }
        }

        function test_partsOfARowStandInItsMiddle() {
            world.pinned = ["a"]
            world.configure({ project: "a" })
            world.list(["a"])
            show()

            const row = find("rows/a")
            for (const part of ["star", "text", "badge"]) {
                const place = placeOf(find(part, row), row)
                fuzzyCompare(place.y + place.height / 2, row.height / 2, 0.5, part)
            }
        }

        function test_theToolTipIsSeen() {
            world.list(["short"], { short: "Short one" })
            show()
            mouseMove(find("rows/short"))

            tryVerify(() => toolTip("short") && toolTip("short").opened)
            compare(toolTip("short").text, "Short one")
            compare(toolTip("short").contentItem.text, "Short one")
        }

        function toolTip(id: string): var {
            return find("rows/" + id + "/toolTip").item
        }

        function test_severalTapsStartSeveralSwitches() {
            world.list(["a", "b", "c"])
            show()
            world.expect("setProject", "b")
            world.expect("setProject", "c")
            press("rows/b")
            press("rows/c")
            world.finish()
            world.configure({ project: "c" })
            world.finish()

            compare(rows()[0], "[Recently Used] c *")
            compare(world.recents, ["c"])
        }

        function test_aPressThatLeavesTheRowSwitchesNothing() {
            world.list(["a", "b"])
            show()
            mousePress(find("rows/a"))
            mouseMove(find("rows/b"))
            mouseRelease(find("rows/b"))
            world.settle()
            compare(world.commands, 1, "only the listing")
            world.expect("setProject", "a")
            press("rows/a")
            world.fail("")
        }
    }
}
