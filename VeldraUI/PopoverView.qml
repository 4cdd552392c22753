// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

// What opens from the status item: the active context, what can be switched, and a footer.
// openManager() and quit() are asked for by their buttons; close(): the user is done with it.
FocusScope {
    id: root

    required property AuthState stateManager
    property bool showRefreshSuccess: false

    readonly property bool isShown: Window.visibility !== Window.Hidden
    property bool hasAppeared: false

    signal openManager()
    signal quit()
    signal close()

    implicitWidth: 400
    implicitHeight: 750
    focus: true

    Accessible.role: Accessible.Pane
    Accessible.name: "Torvi"

    onIsShownChanged: {
        appear()
        if (!isShown)
            forget()
    }

    Component.onCompleted: appear()

    Keys.onPressed: event => event.accepted = handleKey(event)

    Rectangle {
        objectName: "background"
        anchors.fill: parent
        color: Theme.colors.windowBackground
    }

    ScrollArea {
        id: scrollArea

        objectName: "scrollArea"
        width: root.width
        height: footerDivider.y

        PopoverSections {
            id: sections

            objectName: "sections"
            width: scrollArea.width
            stateManager: root.stateManager
            viewportY: scrollArea.contentY
            viewportHeight: scrollArea.height

            onOpenManager: root.openManager()
        }
    }

    Divider {
        id: footerDivider

        objectName: "footerDivider"
        y: footer.y - height
        width: root.width
    }

    PopoverFooter {
        id: footer

        objectName: "footer"
        y: root.height - height
        width: root.width
        isLoading: root.stateManager.isLoading
        showRefreshSuccess: root.showRefreshSuccess

        onOpenManager: root.openManager()
        onQuit: root.quit()
        onRefresh: root.refresh()
    }

    Shortcut {
        sequence: "F5"
        autoRepeat: false
        onActivated: if (!root.stateManager.isLoading) root.refresh()
    }

    Shortcut {
        sequence: "Ctrl+M"
        autoRepeat: false
        onActivated: root.openManager()
    }

    Shortcut {
        sequence: "Ctrl+Q"
        autoRepeat: false
        onActivated: root.quit()
    }

    function appear() {
        if (isShown && !hasAppeared) {
            hasAppeared = true
            stateManager.reload()
        }
    }

    // So that it opens without a menu, and without a mark on any control: a scope alone would hand the
    // keyboard on to what had it last.
    function forget() {
        sections.projects.closeMenu()
        scrollArea.focus = true
        scrollArea.focus = false
        forceActiveFocus()
    }

    function refresh() {
        stateManager.reload(() => {
            if (!stateManager.hasError)
                confirmRefresh()
        })
    }

    function confirmRefresh() {
        showRefreshSuccess = true
        stateManager.afterConfirmation(() => showRefreshSuccess = false)
    }

    // What no control inside wanted for itself.
    function handleKey(event: KeyEvent): bool {
        switch (event.key) {
        case Qt.Key_Up:
            return sections.focusRowsAbove(null)
        case Qt.Key_Down:
            return sections.focusRowsBelow(null)
        case Qt.Key_Escape:
            clearOrClose()
            return true
        case Qt.Key_Backspace:
            return sections.projects.filterBy(sections.projects.searchText.slice(0, -1))
        }
        const isCommand = event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)
        const isText = event.text >= " " && event.text !== "\x7f"
        return !isCommand && isText && sections.projects.filterBy(sections.projects.searchText + event.text)
    }

    function clearOrClose() {
        if (sections.projects.searchText !== "")
            sections.projects.searchText = ""
        else
            close()
    }
}
