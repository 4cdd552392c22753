// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// A hairline: as wide as it is made, one point high.
Rectangle {
    implicitWidth: parent ? parent.width : 0
    implicitHeight: 1
    color: Theme.colors.divider

    Accessible.role: Accessible.Separator
}
