// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI
import VeldraUI.Style

// The settings; each is stored as soon as it is changed.
GroupedForm {
    id: root

    required property SettingsState settings

    FormSection {
        objectName: "general"
        title: qsTr("General")

        FormRow {
            objectName: "launchAtLoginRow"

            Toggle {
                objectName: "launchAtLogin"
                width: parent.width
                text: qsTr("Launch at Login")
                checked: root.settings.launchAtLogin

                onToggled: root.settings.launchAtLogin = checked
            }
        }

        FormRow {
            objectName: "menubarDisplayRow"
            label: qsTr("Menubar Display")

            PopUpPicker {
                objectName: "menubarDisplay"
                label: qsTr("Menubar Display")
                model: root.settings.menubarDisplayFormatTexts
                currentIndex: root.settings.menubarDisplayFormat

                onActivated: index => root.settings.menubarDisplayFormat = index
            }
        }

        FormRow {
            objectName: "refreshIntervalRow"

            Stepper {
                objectName: "refreshInterval"
                width: parent.width
                from: 1
                to: 60
                stepSize: 1
                value: root.settings.refreshIntervalMinutes
                text: qsTr("Refresh interval: %1 min").arg(value)

                onValueModified: root.settings.refreshIntervalMinutes = value
            }
        }
    }

    FormSection {
        objectName: "gcloudCLI"
        title: qsTr("gcloud CLI")

        FormRow {
            objectName: "gcloudPathRow"

            Column {
                width: parent.width
                spacing: 6

                RoundedField {
                    objectName: "gcloudPath"
                    width: parent.width
                    placeholderText: qsTr("gcloud path (auto-detected if empty)")
                    text: root.settings.gcloudPathOverride

                    onTextEdited: root.settings.gcloudPathOverride = text
                }

                StyledText {
                    objectName: "gcloudPathHint"
                    width: parent.width
                    wrapMode: Text.Wrap
                    text: qsTr("Leave empty to auto-detect. Common locations are searched automatically.")
                    textStyle: Typography.caption
                    color: Theme.colors.secondary
                }
            }
        }
    }
}
