// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Copying while none of this application's windows has the keyboard, which Wayland desktops refuse
/// to an ordinary program. Main thread only; never blocks it.
namespace torvi::UnfocusedCopy {

/// Whether the desktop would refuse now.
[[nodiscard]] bool isNeeded();

/// Copies by way of the program wl-copy, where it is installed; without effect elsewhere. The text
/// goes through a pipe, byte for byte.
void copy(const QString &text);

} // namespace torvi::UnfocusedCopy
