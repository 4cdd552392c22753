// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

import QtQuick

import VeldraUI.Style

// One row a control, one column a state: at rest, hover, press, focus, disabled.
Grid {
    padding: 24
    columns: 5
    columnSpacing: 32
    rowSpacing: 20
    verticalItemAlignment: Grid.AlignVCenter

    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        StyledText { required property string modelData; text: modelData; textStyle: Typography.caption; color: Theme.colors.tertiary }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        PlainButton { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; text: "Manager"; symbolName: "arrow.up.forward.square" }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        PlainButton { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; symbolName: "xmark"; foreground: Theme.colors.secondary; textStyle: Typography.caption }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        BorderedButton { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; text: "Manage Configurations..."; textStyle: Typography.callout }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        BorderedButton { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; text: "Clear"; small: true }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        BorderedButton { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; symbolName: "trash"; small: true; destructive: true }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        BorderedButton { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; symbolName: "star"; small: true }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        ProminentButton { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; text: "Create" }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        ProminentButton { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; text: "Create"; small: true }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        LinkButton { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; text: "torvi.example" }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        Toggle { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; text: "Login" }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        Toggle { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; checked: true; text: "Login" }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        Stepper { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; from: 1; to: 60; value: 5; text: value + " min" }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        PopUpPicker { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; model: ["Icon only", "Icon + Project", "Icon + Project + Account"]; currentIndex: 1; width: 150 }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        RoundedField { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; placeholderText: "SA email"; width: 150; textStyle: Typography.callout }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        RoundedField { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; text: "ci-deploy@web.example"; width: 150 }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        TabItem { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; text: "Configurations"; symbolName: "slider.horizontal.3" }
    }
    Repeater {
        model: ["rest", "hover", "press", "focus", "disabled"]
        TabItem { required property string modelData; objectName: modelData; enabled: modelData !== "disabled"; text: "ADC"; symbolName: "key.fill"; checked: true }
    }
}
