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

    // As the program has it: made before it is shown, and hidden in between.
    Component {
        id: windowComponent

        Window {
            id: window

            required property AuthState stateManager
            readonly property alias popover: popover

            width: 400
            height: 750

            PopoverView {
                id: popover

                anchors.fill: parent
                stateManager: window.stateManager
            }
        }
    }

    Component {
        id: spyComponent

        SignalSpy {}
    }

    ViewTest {
        id: test

        name: "PopoverView"
        view: viewComponent

        // A popover whose first refresh has ended.
        function open() {
            if (world.commands === 0)
                world.list(["p-1"])
            show()
            world.settle()
        }

        function spyOn(signalName: string): SignalSpy {
            return createTemporaryObject(spyComponent, stage, { target: shown, signalName: signalName })
        }

        function test_size() {
            open()

            compare([shown.width, shown.height], [400, 750])
            compare(find("background").color, colors.windowBackground)
            compare(insets(find("background"), shown), [0, 0, 0, 0])
        }

        function test_scrollingAreaDividerAndFooterStandBelowEachOther() {
            open()

            compare(placeOf(find("scrollArea")), Qt.rect(0, 0, 400, 750 - 1 - find("footer").height))
            compare(gapBelow(find("scrollArea"), find("footerDivider")), 0)
            compare(find("footerDivider").height, 1)
            compare(find("footerDivider").width, 400)
            compare(gapBelow(find("footerDivider"), find("footer")), 0)
            compare(placeOf(find("footer")).y + find("footer").height, 750)
        }

        // What stands in the scrolling area, from top to bottom.
        function order(): var {
            const parts = []
            collectParts(find("sections"), parts)
            return parts.map(part => part instanceof Divider ? "-" : part.objectName)
        }

        // The hairlines, and the outermost items that have a name.
        function collectParts(item: Item, parts: var) {
            for (let index = 0; index < item.children.length; ++index) {
                const child = item.children[index]
                if (child instanceof Divider || child.objectName !== "") {
                    if (child.visible)
                        parts.push(child)
                } else {
                    collectParts(child, parts)
                }
            }
        }

        function test_theSectionsStandInTheirOrder() {
            open()

            compare(order(), ["activeContext", "-", "projects", "-", "accounts", "-", "configurations", "-",
                              "impersonation", "-", "adcStatus"])
        }

        function test_theBannerStandsBelowTheContextWhileThereIsAnError() {
            open()
            world.setError("boom")
            compare(order().slice(0, 3), ["activeContext", "banner", "-"])
            compare(find("banner").error, "boom")
            tryVerify(() => gapBelow(find("activeContext"), find("banner")) === 4 + 2)
            tryVerify(() => gapBelow(find("banner"), find("sections").children[2]) === 4 + 2)
            world.stateManager.dismissError()

            compare(order().slice(0, 2), ["activeContext", "-"])
        }

        function test_measuresOfTheScrollingArea() {
            open()

            const sections = find("sections"), children = sections.children
            compare(placeOf(find("activeContext"), sections), Qt.rect(12, 12, 376, find("activeContext").height))
            let above = null
            for (let index = 0; index < children.length; ++index) {
                if (!children[index].visible)
                    continue
                compare(placeOf(children[index], sections).x, 12)
                compare(children[index].width, 376)
                if (above)
                    compare(gapBelow(above, children[index]), 2)
                above = children[index]
            }
            compare(insets(above, sections)[3], 12)
            compare(gapBelow(find("activeContext"), children[2]), 4 + 2)
        }

        function test_rowsBelowTheScreenAreNotMadeAtFirst() {
            const ids = []
            for (let number = 0; number < 100; ++number)
                ids.push("project-" + number)
            world.list(ids)
            open()

            const made = Array.from(find("projects/rows").children).filter(child => child.rowY !== undefined)
            const below = made.filter(child => child.mapToItem(find("scrollArea"), 0, 0).y >= find("scrollArea").height)
            verify(made.length > 5)
            verify(below.length <= 2)
        }

        function test_theScrollIndicatorIsShownWhenThereIsMoreThanFits() {
            world.listNumbered(40)
            open()

            verify(find("scrollArea").contentHeight > find("scrollArea").height)
            verify(find("scrollIndicator").visible)
        }

        function test_footerButtons() {
            open()

            for (const [name, text, symbol] of [["managerButton", "Manager", "arrow.up.forward.square"],
                                                 ["quitButton", "Quit", "power"],
                                                 ["refreshButton", "Refresh", "arrow.clockwise"]]) {
                const button = find(name)
                verify(button instanceof PlainButton)
                compare([button.text, button.symbolName], [text, symbol])
                compare(button.textStyle, Typography.callout)
            }
        }

        function test_measuresOfTheFooter() {
            open()

            const footer = find("footer"), manager = find("managerButton")
            compare(insets(manager, footer).slice(0, 2), [12, 10])
            compare(insets(manager, footer)[3], 8)
            compare(gapAfter(manager, find("quitButton")), 12)
            compare(insets(find("refreshButton"), footer)[2], 12)
        }

        function test_managerAndQuitAreAskedFor() {
            open()
            const manager = spyOn("openManager"), quit = spyOn("quit")
            press("managerButton")
            compare([manager.count, quit.count], [1, 0])
            press("quitButton")
            compare([manager.count, quit.count], [1, 1])
        }

        function test_manageConfigurationsOpensTheManager() {
            open()
            const manager = spyOn("openManager")
            press("manageButton")

            compare(manager.count, 1)
        }

        function test_itsFirstAppearanceRefreshesOnce() {
            const window = createTemporaryObject(windowComponent, stage, { stateManager: world.stateManager })
            world.settle()
            verify(!world.stateManager.isLoading, "not before it is shown")
            world.expect("listProjects")
            window.show()
            world.settle()
            verify(world.stateManager.isLoading)
            world.finish("[]")
            world.expire()
            window.hide()
            window.show()
            world.settle()
            compare(world.commands, 1, "nor when it is shown again")
            window.destroy()
            wait(0)
        }

        function test_whatHadTheKeyboardIsForgottenWhenItIsHidden_data() {
            return [{ tag: "button", from: "quitButton", isActive: true },
                    { tag: "row", from: "projects/rows/p-1", isActive: true },
                    { tag: "field", from: "emailField", isActive: true },
                    { tag: "after a press elsewhere", from: "quitButton", isActive: false }]
        }

        function test_whatHadTheKeyboardIsForgottenWhenItIsHidden(data) {
            world.list(["p-1"])
            const window = createTemporaryObject(windowComponent, stage, { stateManager: world.stateManager })
            window.show()
            window.requestActivate()
            world.settle()
            tryVerify(() => find(data.from, window.popover))
            const control = find(data.from, window.popover)
            control.forceActiveFocus(Qt.TabFocusReason)
            tryVerify(() => control.activeFocus)
            if (!data.isActive) {
                stage.Window.window.requestActivate()
                tryVerify(() => !control.activeFocus)
            }
            window.hide()
            window.show()
            window.requestActivate()

            tryVerify(() => window.activeFocusItem === window.popover)
            window.destroy()
            wait(0)
        }

        function refreshState(): var {
            const button = find("refreshButton")
            return [button.text, button.symbolName, button.enabled, isShown("footer/progress")]
        }

        readonly property var idle: ["Refresh", "arrow.clockwise", true, false]
        readonly property var loading: ["Refresh", "arrow.clockwise", false, true]
        readonly property var done: ["Done", "checkmark", true, false]

        function test_whileItLoadsThereIsAnIndicatorLeftOfADisabledButton() {
            world.expect("listProjects")
            show()
            world.settle()

            compare(refreshState(), loading)
            compare(gapAfter(find("footer/progress"), find("refreshButton")), 12)
            verify(find("footer/progress").small)
            world.finish("[]")
            compare(refreshState(), idle)
        }

        function test_aRefreshIsConfirmedForOneAndAHalfSeconds() {
            open()
            press("refreshButton")
            compare(refreshState(), done)
            world.advance(1499)
            compare(refreshState(), done)
            world.advance(1)
            compare(refreshState(), idle)
        }

        function test_aRefreshThatFailsIsNotConfirmed() {
            world.expect("listProjects")
            world.expect("listProjects")
            show()
            world.settle()
            world.finish("[]")
            world.expire()
            press("refreshButton")
            compare(refreshState(), loading)
            world.fail("offline")

            compare(refreshState(), idle)
            compare(find("banner").error, "gcloud command failed (exit 1): offline")
        }

        function test_anOlderConfirmationMayEndANewerOneEarly() {
            open()
            press("refreshButton")
            world.advance(1000)
            press("refreshButton")
            world.advance(500)
            compare(refreshState(), idle)
            world.advance(1000)
            compare(refreshState(), idle)
        }

        function test_theFirstRefreshIsNotConfirmed() {
            open()

            compare(refreshState(), idle)
        }

        function test_dismissalClearsTheError() {
            open()
            world.setError("boom")
            press("banner/dismissButton")

            verify(!world.stateManager.hasError)
            verify(!isShown("banner"))
        }

        function test_retryRefreshes() {
            open()
            world.setError("boom")
            press("banner/retryButton")

            verify(!isShown("banner"))
            verify(!world.stateManager.hasError)
            compare(refreshState(), idle, "only the refresh button confirms")
        }

        function test_aFailedTokenCopyShowsInTheBanner() {
            world.signIn("ada@example.com")
            open()
            world.expect("printIdentityToken")
            press("copyButton")
            world.fail("no")

            compare(find("banner").error, "gcloud command failed (exit 1): no")
            verify(find("copyButton").enabled)
        }

        function test_anOperationThatFailsShowsInTheBanner() {
            open()
            world.expect("setProject", "p-1")
            press("projects/rows/p-1")
            world.fail("no")

            verify(isShown("banner"))
        }

        function test_aLongErrorStaysReadableAndLeavesThePopoverUsable() {
            open()
            world.setError(Array(45).fill("File \"/usr/lib/google-cloud-sdk/lib/module.py\", line 12, in Run").join("\n"))
            tryVerify(() => find("banner").height > 60)

            verify(find("banner").height < 250)
            for (const name of ["retryButton", "dismissButton"]) {
                const place = placeOf(find("banner/" + name))
                verify(place.y >= 0 && place.y + place.height <= find("scrollArea").height)
            }
            press("banner/dismissButton")
            verify(!isShown("banner"))
        }

        function test_onALowScreenItScrolls() {
            world.listNumbered(6)
            show({ height: 400 })
            world.settle()

            compare(placeOf(find("footer")).y + find("footer").height, 400)
            compare(find("scrollArea").height, 400 - 1 - find("footer").height)
            verify(find("scrollArea").scrolls)
        }

        function test_onlyVisibleRowsOfThousandsExist() {
            world.listNumbered(10000)
            open()
            const repeater = find("projects/rows/repeater")
            const onScreen = Math.ceil(find("scrollArea").height / 30)
            verify(repeater.count <= 2 * onScreen, repeater.count)

            for (const part of [0.1, 0.5, 0.9, 1]) {
                const area = find("scrollArea")
                area.contentY = part * (area.contentHeight - area.height)
                verify(repeater.count <= 2 * onScreen, repeater.count)
            }
        }

        function test_whatIsBelowTheScreenIsMadeAfterTheFirstFrame() {
            world.listNumbered(10000)
            const popover = createTemporaryObject(viewComponent, stage, { stateManager: world.stateManager })
            for (const section of ["accounts", "configurations", "impersonation", "adcStatus"])
                verify(!find(section, popover), section)

            for (const section of ["accounts", "configurations", "impersonation", "adcStatus"])
                tryVerify(() => find(section, popover))
            popover.destroy()
            world.settle()
        }

        function test_whatIsOnScreenIsMadeAtOnce() {
            const popover = createTemporaryObject(viewComponent, stage, { stateManager: world.stateManager })
            for (const section of ["accounts", "configurations", "impersonation", "adcStatus"])
                verify(find(section, popover), section)
            popover.destroy()
            world.settle()
        }

        function test_rowsAreWhereTheyBelongAtAnyPlace() {
            world.configure({ project: "project-00500" })
            world.listNumbered(1000)
            open()
            const area = find("scrollArea")
            const rows = find("projects/rows")
            const step = placeOf(find("projects/rows/project-00002"), rows).y
            const extra = rows.height - (1000 * step - 4)
            verify(extra >= 0, "the mark may make its row higher")
            for (const number of [1, 2, 500, 501, 800, 1000, 499]) {
                const id = "project-" + String(number).padStart(5, "0")
                area.contentY = Math.min(area.contentHeight - area.height, 200 + (number - 3) * step)
                const row = find("projects/rows/" + id)
                verify(row, id)
                const before = (number - 1) * step + (number > 500 ? extra : 0)
                compare(placeOf(row, rows).y, before)
            }
        }

        function test_theSwitchIsCarriedThroughToTheCard() {
            world.list(["p-1", "p-2"])
            open()
            world.expect("setProject", "p-2")
            press("projects/rows/p-2")
            world.configure({ project: "p-2" })
            world.finish()

            compare(text("activeContext/project/value"), "p-2")
            compare(world.recents, ["p-2"])
        }

        function test_aPinKeepsTheScrollPosition() {
            world.listNumbered(1000)
            open()
            find("scrollArea").contentY = 10000
            world.stateManager.togglePin("project-00330")

            compare(find("scrollArea").contentY, 10000)
        }

        function test_assistiveTechnologyReadsItsName() {
            open()

            compare(shown.Accessible.role, Accessible.Pane)
            compare(shown.Accessible.name, "Torvi")
        }

        function test_theFootersPartsStandInItsMiddle() {
            world.expect("listProjects")
            show()
            world.settle()

            const middles = ["managerButton", "quitButton", "footer/progress", "refreshButton"].map(part => {
                const place = placeOf(find(part))
                return place.y + place.height / 2
            })
            for (const middle of middles)
                fuzzyCompare(middle, middles[0], 0.5)
            world.finish("[]")
        }

        function test_aMenuGoesWithThePopover_data() {
            return [{ tag: "by mouse", keyboard: false }, { tag: "by keyboard", keyboard: true }]
        }

        function test_aMenuGoesWithThePopover(data) {
            world.list(["p-1"])
            const window = createTemporaryObject(windowComponent, stage, { stateManager: world.stateManager })
            window.show()
            window.requestActivate()
            world.settle()
            const rows = find("projects/rows", window.popover)
            rows.focusRow(0)
            tryVerify(() => rows.activeFocus)
            if (data.keyboard)
                keyClick(Qt.Key_Menu)
            else
                mouseClick(find("projects/rows/p-1", window.popover), 5, 5, Qt.RightButton)
            tryVerify(() => rows.menu.opened)
            window.hide()
            window.show()
            window.requestActivate()

            verify(!rows.menu.visible)
            tryVerify(() => window.activeFocusItem === window.popover)
            window.destroy()
            wait(0)
        }
    }
}
