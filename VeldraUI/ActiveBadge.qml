// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import VeldraUI.Style

// The mark of whatever is active.
StatusBadge {
    text: qsTr("active")
    color: Theme.colors.green
}
