// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI

// The impersonations that are in force: for the CLI, for ADC, or for both. Mostly there are none, and
// none is made.
Column {
    id: root

    required property AuthState stateManager

    leftPadding: 8
    rightPadding: 8
    topPadding: 4
    bottomPadding: 4
    spacing: 4

    Loader {
        objectName: "cli"
        width: root.width - 16
        active: root.stateManager.isImpersonating
        visible: active

        sourceComponent: ActiveImpersonation {
            symbolName: "terminal.fill"
            email: root.stateManager.impersonatedEmail
            kind: qsTr("CLI")

            onClear: root.stateManager.clearImpersonation(AuthState.CLIOnly)
        }
    }

    Loader {
        objectName: "adc"
        width: root.width - 16
        active: root.stateManager.adc.isImpersonating
        visible: active

        sourceComponent: ActiveImpersonation {
            symbolName: "key.fill"
            email: root.stateManager.adc.impersonatedEmail
            kind: qsTr("ADC")

            onClear: root.stateManager.clearImpersonation(AuthState.ADCOnly)
        }
    }
}
