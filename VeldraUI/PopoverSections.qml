// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

// What the popover scrolls: the active context, the banner of the last error, and the sections.
// The part that is on screen is told by viewportY and viewportHeight. What is below it at first is
// made when the first frame is on screen. openManager().
Column {
    id: root

    required property AuthState stateManager
    property real viewportY: 0
    property real viewportHeight: 750

    readonly property ProjectSwitcherView projects: projectSwitcher
    readonly property list<PopoverSection> sectionsBelow: [accounts, configurations, impersonation, adcStatus]
    // Until then nobody knows which rows are on screen.
    property bool isLaidOut: false

    readonly property real innerWidth: width - leftPadding - rightPadding

    signal openManager()

    padding: 12
    spacing: 2

    Component.onCompleted: {
        forceLayout()
        isLaidOut = true
        makeSections(viewportHeight)
    }

    Keys.onUpPressed: focusRowsAbove(Window.activeFocusItem)
    Keys.onDownPressed: focusRowsBelow(Window.activeFocusItem)

    Item {
        width: root.innerWidth
        height: activeContext.height + 4

        ActiveContextView {
            id: activeContext

            objectName: "activeContext"
            width: parent.width
            stateManager: root.stateManager
        }
    }

    Item {
        width: root.innerWidth
        height: banner.height + 4
        visible: root.stateManager.hasError

        Loader {
            id: banner

            width: parent.width
            active: root.stateManager.hasError

            sourceComponent: ErrorBanner {
                objectName: "banner"
                error: root.stateManager.errorMessage
                retryable: true

                onDismiss: root.stateManager.dismissError()
                onRetry: root.stateManager.reload()
            }
        }
    }

    Divider {
        width: root.innerWidth
    }

    ProjectSwitcherView {
        id: projectSwitcher

        objectName: "projects"
        width: root.innerWidth
        stateManager: root.stateManager
        viewportY: root.viewportY - y
        viewportHeight: root.isLaidOut ? root.viewportHeight : 0
    }

    PopoverSection {
        id: accounts

        width: root.innerWidth
        stateManager: root.stateManager
        name: "accounts"
        view: "AccountSwitcherView.qml"
    }

    PopoverSection {
        id: configurations

        width: root.innerWidth
        stateManager: root.stateManager
        name: "configurations"
        view: "ConfigurationSwitcherView.qml"
    }

    Connections {
        target: configurations.item

        function onOpenManager() {
            root.openManager()
        }
    }

    PopoverSection {
        id: impersonation

        width: root.innerWidth
        stateManager: root.stateManager
        name: "impersonation"
        view: "ImpersonationView.qml"
    }

    PopoverSection {
        id: adcStatus

        width: root.innerWidth
        stateManager: root.stateManager
        name: "adcStatus"
        view: "ADCStatusView.qml"
    }

    Connections {
        target: root.Window.window
        enabled: !adcStatus.item

        function onFrameSwapped() {
            Qt.callLater(root.makeSections, Infinity)
        }
    }

    // Those that begin above `bottom`, downwards from the first.
    function makeSections(bottom: real) {
        for (let index = 0; index < sectionsBelow.length && sectionsBelow[index].y < bottom; ++index) {
            sectionsBelow[index].make()
            forceLayout()
        }
    }

    // Those that are there, in the order in which the arrow keys go through them.
    function rowAreas(): var {
        return [projectSwitcher, accounts.item, configurations.item, impersonation.item]
            .map(section => section ? section.rows : null).filter(rows => rows && rows.count > 0)
    }

    function topOf(item: Item): real {
        return item.mapToItem(root, 0, 0).y
    }

    // Puts the keyboard on the first row below `item`, on the very first without one.
    function focusRowsBelow(item: Item): bool {
        const bottom = item ? topOf(item) + item.height : 0
        const below = rowAreas().find(rows => topOf(rows) >= bottom)
        if (!below)
            return false
        below.focusRow(0)
        return true
    }

    // Puts the keyboard on the last row above `item`, on the very last without one. Above all rows
    // there is the filter.
    function focusRowsAbove(item: Item): bool {
        const top = item ? topOf(item) : height
        const above = rowAreas().reverse().find(rows => topOf(rows) + rows.height <= top)
        if (!above)
            return topOf(projectSwitcher.rows) <= top && projectSwitcher.focusFilter()
        above.focusRow(above.count - 1)
        return true
    }
}
