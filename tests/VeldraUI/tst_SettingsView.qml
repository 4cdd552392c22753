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

        SettingsView {
            property AuthState stateManager

            width: 600
            height: 400
            settings: stateManager.settings
        }
    }

    ViewTest {
        id: test

        name: "SettingsView"
        view: viewComponent

        function showStored(settings) {
            world.storeSettings(settings)
            show()
        }

        function test_twoSectionsWithTheirRowsInOrder() {
            show()

            compare(find("general").title, "General")
            compare(find("gcloudCLI").title, "gcloud CLI")
            const rows = ["launchAtLoginRow", "menubarDisplayRow", "refreshIntervalRow"]
            const tops = rows.map(row => placeOf(find("general/" + row)).y)
            verify(tops[0] < tops[1] && tops[1] < tops[2])
            verify(tops[2] < placeOf(find("gcloudCLI/gcloudPathRow")).y)
            compare(find("launchAtLogin").text, "Launch at Login")
            compare(find("menubarDisplayRow").label, "Menubar Display")
            compare(find("menubarDisplay").label, "Menubar Display")
            compare(find("menubarDisplay").model, ["Icon only", "Icon + Project", "Icon + Project + Account"])
        }

        function test_showsWhatIsStored_data() {
            return [
                { tag: "one", launchAtLogin: true, format: "icon_only", index: 0, interval: 1, path: null, shown: "" },
                { tag: "two", launchAtLogin: false, format: "icon_and_project", index: 1, interval: 5, path: "/opt/gcloud", shown: "/opt/gcloud" },
                { tag: "three", launchAtLogin: true, format: "icon_and_project_and_account", index: 2, interval: 60, path: "  ", shown: "  " },
            ]
        }

        function test_showsWhatIsStored(row) {
            showStored({ launchAtLogin: row.launchAtLogin, format: row.format, interval: row.interval, path: row.path })

            compare(find("launchAtLogin").checked, row.launchAtLogin)
            compare(find("menubarDisplay").currentIndex, row.index)
            compare(find("refreshInterval").value, row.interval)
            compare(find("refreshInterval").text, "Refresh interval: " + row.interval + " min")
            compare(text("gcloudPath"), row.shown)
        }

        function test_followsWhatIsStoredElsewhere() {
            show()
            world.storeSettings({ launchAtLogin: true, format: "icon_only", interval: 30, path: "/g" })

            verify(find("launchAtLogin").checked)
            compare(find("menubarDisplay").currentIndex, 0)
            compare(find("refreshInterval").text, "Refresh interval: 30 min")
            compare(text("gcloudPath"), "/g")
        }

        function test_theToggleStoresItsState() {
            show()
            mouseClick(find("launchAtLogin"))
            compare(world.settings.launchAtLogin, true)
            mouseClick(find("launchAtLogin"))

            compare(world.settings.launchAtLogin, false)
            compare(world.commands, 0)
        }

        function test_thePickerStoresEachFormat_data() {
            return [{ tag: "icon_only", index: 0 }, { tag: "icon_and_project", index: 1 },
                    { tag: "icon_and_project_and_account", index: 2 }]
        }

        function test_thePickerStoresEachFormat(row) {
            world.storeSettings({ format: row.index === 0 ? "icon_and_project" : "icon_only" })
            show()
            const picker = find("menubarDisplay")
            mouseClick(picker)
            tryVerify(() => picker.popup.opened)
            mouseClick(picker.popup.contentItem.itemAtIndex(row.index))

            compare(world.settings.format, row.tag)
            compare(picker.currentIndex, row.index)
            tryVerify(() => !picker.popup.visible)
        }

        function test_everyFormatIsReadInFull() {
            show()
            const picker = find("menubarDisplay")
            mouseClick(picker)
            tryVerify(() => picker.popup.opened)

            for (let row = 0; row < 3; ++row)
                verify(!picker.popup.contentItem.itemAtIndex(row).contentItem.truncated, row)
            picker.popup.close()
            tryVerify(() => !picker.popup.visible)
            world.storeSettings({ format: "icon_and_project_and_account" })
            verify(!picker.contentItem.truncated)
        }

        function test_theStepperStoresEachStep() {
            show()
            const stepper = find("refreshInterval")
            mouseClick(stepper.up.indicator)
            compare(world.settings.interval, 6)
            compare(stepper.text, "Refresh interval: 6 min")
            mouseClick(stepper.down.indicator)

            compare(world.settings.interval, 5)
            compare(stepper.stepSize, 1)
        }

        function test_theStepperDoesNotGoBelowOne() {
            showStored({ interval: 1 })
            mouseClick(find("refreshInterval").down.indicator)
            find("refreshInterval").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Down)

            compare(world.settings.interval, 1)
            compare(find("refreshInterval").value, 1)
        }

        function test_theStepperDoesNotGoAboveSixty() {
            showStored({ interval: 60 })
            mouseClick(find("refreshInterval").up.indicator)
            find("refreshInterval").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Up)

            compare(world.settings.interval, 60)
            compare(find("refreshInterval").value, 60)
        }

        function test_typingAPathStoresItAsTyped() {
            show()
            mouseClick(find("gcloudPath"))
            keySequence("/")
            compare(world.settings.path, "/")
            keySequence("x")
            compare(world.settings.path, "/x")
        }

        function test_typingSpacesStoresTheSpaces() {
            show()
            mouseClick(find("gcloudPath"))
            keyClick(Qt.Key_Space)
            keyClick(Qt.Key_Space)

            compare(world.settings.path, "  ")
        }

        function test_clearingThePathRemovesIt() {
            showStored({ path: "/opt" })
            mouseClick(find("gcloudPath"))
            find("gcloudPath").selectAll()
            keyClick(Qt.Key_Delete)

            compare(world.settings.path, null)
            compare(text("gcloudPath/placeholder"), "gcloud path (auto-detected if empty)")
            verify(isShown("gcloudPath/placeholder"))
        }

        function test_typingInTheMiddleKeepsTheCaretThere() {
            showStored({ path: "/opt" })
            mouseClick(find("gcloudPath"))
            find("gcloudPath").cursorPosition = 1
            keySequence("a")
            keySequence("b")

            compare(world.settings.path, "/abopt")
        }

        function test_theHintStandsBelowThePath() {
            show()
            const hint = find("gcloudPathHint")

            compare(hint.text, "Leave empty to auto-detect. Common locations are searched automatically.")
            compare(hint.textStyle, Typography.caption)
            compare(hint.color, colors.secondary)
            verify(gapBelow(find("gcloudPath"), hint) > 0)
        }

        function test_everyControlIsReachedByTheTabKey() {
            show()
            for (const name of ["launchAtLogin", "menubarDisplay", "refreshInterval", "gcloudPath"]) {
                keyClick(Qt.Key_Tab)
                verify(find(name).activeFocus, name)
            }
        }

        function test_assistiveTechnologyReadsEveryControl() {
            showStored({ launchAtLogin: true })

            compare(find("launchAtLogin").Accessible.role, Accessible.CheckBox)
            compare(find("launchAtLogin").Accessible.name, "Launch at Login")
            verify(find("launchAtLogin").Accessible.checked)
            compare(find("menubarDisplay").Accessible.name, "Menubar Display")
            compare(find("menubarDisplay").Accessible.description, "Icon + Project")
            compare(find("refreshInterval").Accessible.name, "Refresh interval: 5 min")
            compare(find("gcloudPath").Accessible.name, "gcloud path (auto-detected if empty)")
        }

        function test_aSmallWindowScrollsToWhatTheKeyboardReaches() {
            show({ width: 480, height: 200 })
            verify(shown.scrolls)
            for (let i = 0; i < 4; ++i)
                keyClick(Qt.Key_Tab)

            const place = placeOf(find("gcloudPath"))
            verify(place.y >= 0 && place.y + place.height <= 200)
        }

        function test_thePathIsTypedInAFieldWithARoundedBorder() {
            show()

            verify(find("gcloudPath").framed)
        }

        function test_theHintIsReadInFullInASmallWindow() {
            show({ width: 300 })

            verify(find("gcloudPathHint").lineCount > 1)
            verify(!find("gcloudPathHint").truncated)
            compare(find("gcloudPathHint").width, find("gcloudPath").width)
        }

        function drawnTexts(item: Item): var {
            const texts = item instanceof Text && item.visible ? [item.text] : []
            for (let index = 0; index < item.children.length; ++index)
                texts.push(...drawnTexts(item.children[index]))
            return texts
        }

        function test_everyTextIsDrawn() {
            show()

            compare(drawnTexts(find("general")).filter(text => text !== ""),
                    ["General", "Launch at Login", "Menubar Display", "Icon + Project", "Refresh interval: 5 min"])
            compare(drawnTexts(find("gcloudCLI"))[0], "gcloud CLI")
        }
    }
}
