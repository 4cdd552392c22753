// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

// The manager window: the less frequent tasks, each on a page of its own behind a tab. A page is made
// when its tab is first shown, and then stays as its user left it.
FocusScope {
    id: root

    required property AuthState stateManager

    readonly property list<ManagerPage> pages: [configurationsPage, serviceAccountsPage, adcPage, settingsPage,
                                                aboutPage]

    implicitWidth: 600
    implicitHeight: 450
    focus: true

    Accessible.role: Accessible.Pane
    Accessible.name: "Torvi"

    Rectangle {
        objectName: "background"
        anchors.fill: parent
        color: Theme.colors.windowBackground
    }

    TabBar {
        id: tabBar

        objectName: "tabs"
        width: root.width

        TabItem {
            objectName: "configurationsTab"
            text: qsTr("Configurations")
            symbolName: "slider.horizontal.3"
        }

        TabItem {
            objectName: "serviceAccountsTab"
            text: qsTr("Service Accounts")
            symbolName: "person.badge.key"
        }

        TabItem {
            objectName: "adcTab"
            text: qsTr("ADC")
            symbolName: "key.fill"
        }

        TabItem {
            objectName: "settingsTab"
            text: qsTr("Settings")
            symbolName: "gear"
        }

        TabItem {
            objectName: "aboutTab"
            text: qsTr("About")
            symbolName: "info.circle"
        }
    }

    ManagerPage {
        id: configurationsPage

        objectName: "configurationsPage"
        tabs: tabBar
        place: 0
        sourceComponent: ConfigurationEditorView {
            stateManager: root.stateManager
        }
    }

    ManagerPage {
        id: serviceAccountsPage

        objectName: "serviceAccountsPage"
        tabs: tabBar
        place: 1
        sourceComponent: ServiceAccountManagerView {
            stateManager: root.stateManager
        }
    }

    ManagerPage {
        id: adcPage

        objectName: "adcPage"
        tabs: tabBar
        place: 2
        sourceComponent: ADCManagerView {
            stateManager: root.stateManager
        }
    }

    ManagerPage {
        id: settingsPage

        objectName: "settingsPage"
        tabs: tabBar
        place: 3
        sourceComponent: SettingsView {
            settings: root.stateManager.settings
        }
    }

    ManagerPage {
        id: aboutPage

        objectName: "aboutPage"
        tabs: tabBar
        place: 4
        sourceComponent: AboutView {}
    }

    Shortcut {
        sequences: [StandardKey.NextChild]
        onActivated: root.choose((tabBar.currentIndex + 1) % tabBar.count)
    }

    Shortcut {
        // X11 has taken the Shift away when it says that the key is the one that goes back.
        sequences: [StandardKey.PreviousChild, "Ctrl+Backtab"]
        onActivated: root.choose((tabBar.currentIndex + tabBar.count - 1) % tabBar.count)
    }

    Instantiator {
        model: tabBar.count

        Shortcut {
            required property int index

            sequence: "Ctrl+" + (index + 1)
            onActivated: root.choose(index)
        }
    }

    // By the keyboard, which stays on the tabs where it was there, and goes to the new page otherwise.
    function choose(place: int) {
        if (tabBar.activeFocus) {
            (tabBar.currentItem as TabItem).choose(place)
        } else {
            tabBar.setCurrentIndex(place)
            pages[place].takeKeyboard()
        }
    }
}
