// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

Item {
    width: 600
    height: 760

    TabBar {
        id: tabs
        width: parent.width
        currentIndex: 3
        TabItem { text: "Configurations"; symbolName: "slider.horizontal.3" }
        TabItem { text: "Service Accounts"; symbolName: "person.badge.key" }
        TabItem { text: "ADC"; symbolName: "key.fill" }
        TabItem { text: "Settings"; symbolName: "gear" }
        TabItem { text: "About"; symbolName: "info.circle" }
    }

    GroupedForm {
        id: form
        anchors.top: tabs.bottom
        width: parent.width
        height: 330

        FormSection {
            title: "General"
            FormRow { Toggle { width: parent.width; text: "Launch at Login"; checked: true } }
            FormRow { label: "Menubar Display"; PopUpPicker { label: "Menubar Display"; model: ["Icon only", "Icon + Project", "Icon + Project + Account"]; currentIndex: 1 } }
            FormRow { Stepper { width: parent.width; from: 1; to: 60; value: 5; text: "Refresh interval: " + value + " min" } }
        }
        FormSection {
            title: "gcloud CLI"
            FormRow {
                Column {
                    width: parent.width
                    spacing: 6
                    RoundedField { width: parent.width; placeholderText: "gcloud path (auto-detected if empty)" }
                    StyledText { text: "Leave empty to auto-detect. Common locations are searched automatically."; textStyle: Typography.caption; color: Theme.colors.secondary }
                }
            }
        }
    }

    GroupBox {
        id: box
        anchors.top: form.bottom
        x: 16
        width: parent.width - 32
        title: "Current ADC Status"
        Column {
            spacing: 8
            StyledText { text: "Type: User Credentials (authorized_user)"; textStyle: Typography.callout }
            ProminentButton { text: "Run ADC Login (opens browser)" }
        }
    }

    EmptyState {
        anchors.top: box.bottom
        anchors.topMargin: 24
        width: parent.width
        symbolName: "person.badge.key"
        title: "No Service Accounts Found"
        description: "Could not list service accounts (missing IAM permissions?). Add one manually below."
    }
}
