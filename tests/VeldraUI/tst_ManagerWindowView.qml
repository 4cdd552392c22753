// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI
import VeldraUI.Style

Item {
    width: 600
    height: 450

    Component {
        id: viewComponent

        ManagerWindowView {
            width: 600
            height: 450
        }
    }

    ViewTest {
        id: test

        name: "ManagerWindowView"
        view: viewComponent

        readonly property var tabNames: ["configurationsTab", "serviceAccountsTab", "adcTab", "settingsTab", "aboutTab"]
        readonly property var pageNames: ["configurationsPage", "serviceAccountsPage", "adcPage", "settingsPage",
                                          "aboutPage"]

        function viewOf(page: string): Item {
            return find(page).item
        }

        function shownPage(): string {
            return pageNames.filter(name => isShown(name)).join()
        }

        function test_isAsLargeAsTheWindow() {
            show()

            compare(shown.implicitWidth, 600)
            compare(shown.implicitHeight, 450)
            compare(find("background").color, colors.windowBackground)
            compare(insets(find("background"), shown), [0, 0, 0, 0])
            compare(placeOf(find("tabs")), Qt.rect(0, 0, 600, find("tabs").height))
        }

        function test_tabs_data() {
            return [
                { tag: "configurationsTab", place: 0, text: "Configurations", symbol: "slider.horizontal.3" },
                { tag: "serviceAccountsTab", place: 1, text: "Service Accounts", symbol: "person.badge.key" },
                { tag: "adcTab", place: 2, text: "ADC", symbol: "key.fill" },
                { tag: "settingsTab", place: 3, text: "Settings", symbol: "gear" },
                { tag: "aboutTab", place: 4, text: "About", symbol: "info.circle" },
            ]
        }

        function test_tabs(row) {
            show()
            const tabs = find("tabs")

            compare(tabs.count, tabNames.length)
            compare(tabs.itemAt(row.place), find(row.tag))
            compare(find(row.tag).text, row.text)
            compare(find(row.tag).symbolName, row.symbol)
            compare(find(row.tag).Accessible.role, Accessible.PageTab)
            compare(find(row.tag).Accessible.selected, row.place === 0)
        }

        function test_aClickOnATabShowsItsPageBelowTheTabs() {
            show()
            for (let place = 0; place < tabNames.length; ++place) {
                mouseClick(find(tabNames[place]))
                compare(shownPage(), pageNames[place])
                const page = placeOf(find(pageNames[place]))
                compare(page.y, find("tabs").height)
                compare(page.width, 600)
                compare(page.y + page.height, 450)
            }
        }

        function test_aPageIsMadeWhenItsTabIsFirstShownAndThenStays() {
            show()
            compare(pageNames.filter(name => viewOf(name) !== null), [pageNames[0]])
            const first = viewOf(pageNames[0])
            mouseClick(find("aboutTab"))
            verify(viewOf("aboutPage") !== null)
            compare(viewOf(pageNames[0]), first)
            mouseClick(find(tabNames[0]))

            compare(viewOf(pageNames[0]), first)
        }

        function test_switchingTabsReloadsNothing() {
            show()
            for (const name of tabNames)
                press(name)

            compare(world.commands, 0)
        }

        function test_openingTheWindowStartsNoDiscovery() {
            world.signIn("a@x", "p1")
            show()
            world.settle()
            compare(world.commands, 0)
            world.expect("listServiceAccounts", "p1")
            press("serviceAccountsTab")
            compare(world.commands, 1)
            press("adcTab")
            press("serviceAccountsTab")

            compare(world.commands, 1)
            world.finish("[]")
        }

        function test_everyPageHasTheSameStateManager() {
            show()
            for (const name of ["configurations", "serviceAccounts", "adc"]) {
                mouseClick(find(name + "Tab"))
                compare(viewOf(name + "Page").stateManager, world.stateManager)
            }
            mouseClick(find("settingsTab"))
            compare(viewOf("settingsPage").settings, world.stateManager.settings)
        }

        function test_typedTextSurvivesAChangeOfTab() {
            show()
            mouseClick(find("settingsTab"))
            mouseClick(find("gcloudPath"))
            keyClick(Qt.Key_Space)
            mouseClick(find("aboutTab"))
            mouseClick(find("settingsTab"))

            compare(text("gcloudPath"), " ")
        }

        function test_whatIsTypedForAServiceAccountSurvivesToo() {
            show()
            mouseClick(find("serviceAccountsTab"))
            mouseClick(find("emailField"))
            keyClick(Qt.Key_N)
            mouseClick(find("adcTab"))
            mouseClick(find("quotaField"))
            keyClick(Qt.Key_Q)
            mouseClick(find("serviceAccountsTab"))
            compare(text("emailField"), "n")
            mouseClick(find("adcTab"))

            compare(text("quotaField"), "q")
        }

        function test_controlTabGoesThroughTheTabsAndRoundThem() {
            show()
            for (let step = 1; step <= tabNames.length; ++step) {
                keyClick(Qt.Key_Tab, Qt.ControlModifier)
                compare(shownPage(), pageNames[step % pageNames.length])
            }
        }

        function test_controlShiftTabGoesBack() {
            show()
            for (let step = 1; step <= tabNames.length; ++step) {
                keyClick(Qt.Key_Backtab, Qt.ControlModifier | Qt.ShiftModifier)
                compare(shownPage(), pageNames[(pageNames.length - step) % pageNames.length])
            }
        }

        function test_controlAndADigitShowsThePage() {
            show()
            for (let place = pageNames.length; place-- > 0;) {
                keyClick(Qt.Key_1 + place, Qt.ControlModifier)
                compare(shownPage(), pageNames[place])
            }
        }

        function test_aDigitBeyondTheTabsDoesNothing() {
            show()
            keyClick(Qt.Key_1 + pageNames.length, Qt.ControlModifier)

            compare(shownPage(), pageNames[0])
        }

        function test_anOpenSheetKeepsTheTabsAsTheyAre() {
            show()
            const page = viewOf("configurationsPage")
            page.showingCreateSheet = true
            tryVerify(() => page.createSheet.opened)
            keyClick(Qt.Key_Tab, Qt.ControlModifier)
            keyClick(Qt.Key_2, Qt.ControlModifier)
            mouseClick(find("aboutTab"))

            compare(shownPage(), "configurationsPage")
            keyClick(Qt.Key_Escape)
            tryVerify(() => !page.createSheet.visible)
        }

        function test_arrowKeysOnTheTabsChooseTheNext() {
            show()
            keyClick(Qt.Key_Tab)
            verify(find(tabNames[0]).visualFocus)
            keyClick(Qt.Key_Right)

            compare(shownPage(), pageNames[1])
            verify(find(tabNames[1]).visualFocus)
        }

        function test_theKeyboardStaysOnTheTabsWhenItWasThere() {
            show()
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Tab, Qt.ControlModifier)

            verify(find(tabNames[1]).visualFocus)
        }

        function test_theKeyboardGoesToTheNewPageAndBackToWhereItWas() {
            show()
            keyClick(Qt.Key_1 + tabNames.indexOf("settingsTab"), Qt.ControlModifier)
            mouseClick(find("gcloudPath"))
            keyClick(Qt.Key_1 + tabNames.indexOf("aboutTab"), Qt.ControlModifier)
            verify(find("link").visualFocus)
            keyClick(Qt.Key_1 + tabNames.indexOf("settingsTab"), Qt.ControlModifier)

            verify(find("gcloudPath").activeFocus)
        }

        function test_itOpensWithoutAMarkOnAnyControl() {
            show()

            verify(shown.activeFocus)
            verify(!find(tabNames[0]).visualFocus)
        }

        function test_theTabsFitASmallWindow() {
            show({ width: 480, height: 360 })
            const tabs = placeOf(find("tabs"))
            const last = placeOf(find("aboutTab"))

            verify(placeOf(find(tabNames[0])).x >= 0)
            verify(last.x + last.width <= tabs.width)
        }

        function test_itIsALightOrADarkWindow() {
            show()
            const shades = [true, false].map(dark => {
                shown.Theme.dark = dark
                compare(find("background").color, shown.Theme.colors.windowBackground)
                return find("background").color.hslLightness
            })
            verify(shades[0] < 0.3 && shades[1] > 0.7, shades)
        }

        function test_controlBacktabGoesBackAsX11TellsIt() {
            show()
            keyClick(Qt.Key_Backtab, Qt.ControlModifier)

            compare(shownPage(), "aboutPage")
        }

        function test_assistiveTechnologyReadsItsName() {
            show()

            compare(shown.Accessible.role, Accessible.Pane)
            compare(shown.Accessible.name, "Torvi")
        }
    }
}
