// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest

import VeldraUI
import VeldraUI.Style
import VeldraUI.Tests

// A test case for a view, made anew by show() for each test, over a world of its own.
TestCase {
    id: root

    required property Component view
    property World world: null
    property Item shown: null

    // Where the views are put: a test case itself is not on screen.
    readonly property Item stage: parent
    readonly property ColorRoles colors: stage.Theme.colors

    when: windowShown

    Component {
        id: worldComponent

        World {}
    }

    function init() {
        failOnWarning(/.?/)
        world = createTemporaryObject(worldComponent, stage)
        mouseMove(stage, stage.width - 1, stage.height - 1)
    }

    function cleanup() {
        const complaints = world.complaints()
        if (shown)
            shown.destroy()
        shown = null
        wait(0)
        compare(complaints, 0, "commands that were not expected, or did not come")
    }

    function show(properties: var): Item {
        shown = createTemporaryObject(view, stage,
                                      Object.assign({ stateManager: world.stateManager }, properties ?? {}))
        verify(shown)
        waitForRendering(shown)
        return shown
    }

    // The item called `path`, as in "projects/filter/clearButton", below `from`, on screen or not.
    function find(path: string, from): Item {
        let item = from ?? shown
        for (const name of path.split("/"))
            item = item ? below(item, name) : null
        return item
    }

    function below(item: Item, name: string): Item {
        for (let index = 0; index < item.children.length; ++index) {
            if (item.children[index].objectName === name)
                return item.children[index]
        }
        for (let index = 0; index < item.children.length; ++index) {
            const found = below(item.children[index], name)
            if (found)
                return found
        }
        return null
    }

    function isShown(path: string, from): bool {
        const item = find(path, from)
        return item !== null && item.visible
    }

    function text(path: string, from): string {
        return find(path, from).text
    }

    function placeOf(item: Item, within): rect {
        return item.mapToItem(within ?? shown, Qt.rect(0, 0, item.width, item.height))
    }

    function gapBelow(upper: Item, lower: Item): real {
        const place = placeOf(upper)
        return placeOf(lower).y - place.y - place.height
    }

    function gapAfter(left: Item, right: Item): real {
        const place = placeOf(left)
        return placeOf(right).x - place.x - place.width
    }

    // Padding of an item inside another.
    function insets(inner: Item, outer: Item): var {
        const place = placeOf(inner, outer)
        return [place.x, place.y, outer.width - place.x - place.width, outer.height - place.y - place.height]
    }

    function press(path: string, from) {
        mouseClick(find(path, from))
        world.settle()
    }
}
