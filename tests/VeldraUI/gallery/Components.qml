// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

Column {
    id: root

    readonly property string traceback: {
        const lines = ["ERROR: gcloud crashed (TransportError): unable to reach the token endpoint", "Traceback (most recent call last):"]
        for (let i = 0; i < 43; ++i)
            lines.push("  File \"/usr/lib/google-cloud-sdk/lib/googlecloudsdk/core/module_" + i + ".py\", line " + 37 * i + ", in _Run")
        return lines.join("\n")
    }

    width: 400
    padding: 12
    spacing: 10

    ErrorBanner { width: 376; error: "gcloud was not found. Install it or set its path in Settings."; retryable: true }
    ErrorBanner { width: 376; error: "Short." }
    ErrorBanner { width: 376 }
    ErrorBanner { width: 376; error: root.traceback; retryable: true }
    SearchField { width: 376; placeholder: "Filter projects..." }
    SearchField { width: 376; placeholder: "Filter projects..."; text: "web" }
    SectionHeader { title: "Projects"; icon: "folder" }
    SectionHeader { title: "Accounts"; icon: "person.2" }
    SectionHeader { title: "Application Default Credentials" }
    Row {
        spacing: 8
        StatusBadge { text: "active"; color: Theme.colors.green }
        StatusBadge { text: "configured"; color: Theme.colors.green; icon: "checkmark" }
        StatusBadge { text: "warning"; color: Theme.colors.orange }
        StatusBadge { text: "failed"; color: Theme.colors.red; icon: "xmark" }
        ProgressIndicator { small: true }
        ProgressIndicator {}
    }
    Divider { width: 376 }
    SegmentedPicker { width: 376; label: "Mode"; model: ["ADC Only", "CLI Only", "Both"]; currentIndex: 0; small: true }
    SegmentedPicker { label: "Mode"; labelVisible: false; model: ["ADC Only", "CLI Only", "Both"]; currentIndex: 1 }
    SegmentedPicker { width: 376; enabled: false; label: "Mode"; model: ["ADC Only", "CLI Only", "Both"]; currentIndex: 2 }
    Repeater {
        model: ["rest", "hover", "press", "focus"]
        RowButton {
            required property string modelData
            objectName: modelData
            width: 376
            current: true
            text: modelData
            contentItem: Item {
                implicitHeight: badge.implicitHeight
                ElidedText { anchors.verticalCenter: parent.verticalCenter; width: parent.width - 70; text: "a-project-with-a-very-long-identifier-that-does-not-fit-" + parent.parent.text; elide: Text.ElideMiddle }
                StatusBadge { id: badge; anchors.right: parent.right; text: "active" }
            }
        }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus"]
        RowButton {
            required property string modelData
            objectName: modelData
            width: 376
            contentItem: StyledText { text: "web-production" }
        }
    }
}
