// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

// What the popover scrolls: the active context, the banner of the last error, and the sections.
// The part that is on screen is told by viewportY and viewportHeight. openManager().
Column {
    id: root

    required property AuthState stateManager
    property real viewportY: 0
    property real viewportHeight: 750

    readonly property ProjectSwitcherView projects: projectSwitcher
    // In the order in which the arrow keys go through them.
    readonly property list<RowArea> rowAreas: [projectSwitcher.rows, accountSwitcher.rows,
                                               configurationSwitcher.rows, impersonation.rows]
    // Until then nobody knows which rows are on screen.
    property bool isLaidOut: false

    readonly property real innerWidth: width - leftPadding - rightPadding

    signal openManager()

    padding: 12
    spacing: 2

    Component.onCompleted: {
        forceLayout()
        isLaidOut = true
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

    Divider {
        width: root.innerWidth
    }

    AccountSwitcherView {
        id: accountSwitcher

        objectName: "accounts"
        width: root.innerWidth
        stateManager: root.stateManager
    }

    Divider {
        width: root.innerWidth
    }

    ConfigurationSwitcherView {
        id: configurationSwitcher

        objectName: "configurations"
        width: root.innerWidth
        stateManager: root.stateManager

        onOpenManager: root.openManager()
    }

    Divider {
        width: root.innerWidth
    }

    ImpersonationView {
        id: impersonation

        objectName: "impersonation"
        width: root.innerWidth
        stateManager: root.stateManager
    }

    Divider {
        width: root.innerWidth
    }

    ADCStatusView {
        objectName: "adcStatus"
        width: root.innerWidth
        stateManager: root.stateManager
    }

    function topOf(item: Item): real {
        return item.mapToItem(root, 0, 0).y
    }

    // Puts the keyboard on the first row below `item`, on the very first without one.
    function focusRowsBelow(item: Item): bool {
        const bottom = item ? topOf(item) + item.height : 0
        for (let index = 0; index < rowAreas.length; ++index) {
            const rows = rowAreas[index]
            if (rows.count > 0 && topOf(rows) >= bottom) {
                rows.focusRow(0)
                return true
            }
        }
        return false
    }

    // Puts the keyboard on the last row above `item`, on the very last without one. Above all rows
    // there is the filter.
    function focusRowsAbove(item: Item): bool {
        const top = item ? topOf(item) : height
        for (let index = rowAreas.length - 1; index >= 0; --index) {
            const rows = rowAreas[index]
            if (rows.count > 0 && topOf(rows) + rows.height <= top) {
                rows.focusRow(rows.count - 1)
                return true
            }
        }
        return topOf(projectSwitcher.rows) <= top && projectSwitcher.focusFilter()
    }
}
