// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/AuthContext.h"

#include <QByteArray>
#include <QStringList>

namespace torvi {

/// The programs that show one line of the context, each with its own way of colouring it.
enum class BarFormat {
    waybar, ///< JSON of its custom module: "text" and "tooltip" in Pango markup, "class" for CSS
    polybar, ///< text with %{…} tags
    i3blocks, ///< Pango markup, for a block with interval=persist and markup=pango
    plain, ///< text and nothing else, for prompts
};

/// The active project and, if there is one, the name of the impersonated service account: one line
/// without its line feed, never empty, and nothing in it that `format` would take for an
/// instruction. An impersonation is of class "impersonating", or orange.
///
/// `notes` are what else is to be known; waybar, which has room in its tool tip, shows them, and
/// gets the class "warning" for them.
[[nodiscard]] QByteArray barLine(const AuthContext &context, const QStringList &notes,
                                 BarFormat format);

} // namespace torvi
