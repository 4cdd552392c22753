// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace torvi {

/// The colours of one appearance, by what they are for. Two sets exist, dark() and light(); they
/// never change. In QML: `Theme.colors`.
class ColorRoles final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Taken from Theme.colors")

    // Texts and symbols, from what matters most to what may be overlooked.
    Q_PROPERTY(QColor primary MEMBER primary CONSTANT)
    Q_PROPERTY(QColor secondary MEMBER secondary CONSTANT)
    Q_PROPERTY(QColor tertiary MEMBER tertiary CONSTANT)
    Q_PROPERTY(QColor quaternary MEMBER quaternary CONSTANT)
    Q_PROPERTY(QColor green MEMBER green CONSTANT)
    Q_PROPERTY(QColor orange MEMBER orange CONSTANT)
    Q_PROPERTY(QColor yellow MEMBER yellow CONSTANT)
    Q_PROPERTY(QColor red MEMBER red CONSTANT)
    Q_PROPERTY(QColor link MEMBER link CONSTANT)

    // Surfaces.
    Q_PROPERTY(QColor windowBackground MEMBER windowBackground CONSTANT)
    Q_PROPERTY(QColor material MEMBER material CONSTANT)
    Q_PROPERTY(QColor quaternaryFill MEMBER quaternaryFill CONSTANT)
    Q_PROPERTY(QColor groupBackground MEMBER groupBackground CONSTANT)
    Q_PROPERTY(QColor popupBackground MEMBER popupBackground CONSTANT)
    Q_PROPERTY(QColor popupBorder MEMBER popupBorder CONSTANT)
    Q_PROPERTY(QColor divider MEMBER divider CONSTANT)
    Q_PROPERTY(QColor scrim MEMBER scrim CONSTANT)

    // Controls.
    Q_PROPERTY(QColor accent MEMBER accent CONSTANT)
    Q_PROPERTY(QColor accentHovered MEMBER accentHovered CONSTANT)
    Q_PROPERTY(QColor accentPressed MEMBER accentPressed CONSTANT)
    Q_PROPERTY(QColor onAccent MEMBER onAccent CONSTANT)
    Q_PROPERTY(QColor control MEMBER control CONSTANT)
    Q_PROPERTY(QColor controlHovered MEMBER controlHovered CONSTANT)
    Q_PROPERTY(QColor controlPressed MEMBER controlPressed CONSTANT)
    Q_PROPERTY(QColor controlBorder MEMBER controlBorder CONSTANT)
    Q_PROPERTY(QColor hovered MEMBER hovered CONSTANT)
    Q_PROPERTY(QColor pressed MEMBER pressed CONSTANT)
    Q_PROPERTY(QColor field MEMBER field CONSTANT)
    Q_PROPERTY(QColor fieldBorder MEMBER fieldBorder CONSTANT)
    Q_PROPERTY(QColor selectedText MEMBER selectedText CONSTANT)
    Q_PROPERTY(QColor focusRing MEMBER focusRing CONSTANT)
    Q_PROPERTY(QColor track MEMBER track CONSTANT)
    Q_PROPERTY(QColor knob MEMBER knob CONSTANT)
    Q_PROPERTY(QColor scrollIndicator MEMBER scrollIndicator CONSTANT)

public:
    /// Owned by the program, never by an engine.
    static ColorRoles &dark();
    static ColorRoles &light();

    QColor primary, secondary, tertiary, quaternary;
    QColor green, orange, yellow, red, link;
    QColor windowBackground, material, quaternaryFill, groupBackground;
    QColor popupBackground, popupBorder, divider, scrim;
    QColor accent, accentHovered, accentPressed, onAccent;
    QColor control, controlHovered, controlPressed, controlBorder;
    QColor hovered, pressed, field, fieldBorder, selectedText;
    QColor focusRing, track, knob, scrollIndicator;

private:
    ColorRoles();
};

} // namespace torvi
