// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/Linux/IconPixmap.h"

#include <QString>

/// The symbols that the status item shows, by their names.
namespace torvi::StatusSymbol {

/// The folder of icon themes that belongs to the program at `programDirectory`, installed or built.
[[nodiscard]] QString iconThemePath(const QString &programDirectory);

/// The icon's name in that folder: a symbolic icon, which panels tint. Empty when its file is not
/// there: panels show a broken image for a name that they do not find, but take the pixmaps when
/// there is no name.
[[nodiscard]] QString iconName(const QString &symbol, const QString &iconThemePath);

/// The symbol from 18 to 48 pixels, in a grey that is legible on light and on dark; empty for an
/// unknown symbol.
[[nodiscard]] IconPixmaps pixmaps(const QString &symbol);

} // namespace torvi::StatusSymbol
