// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

/// What the session that the program runs in is.
namespace torvi::Session {

/// The desktop is a Wayland one, also when this program's own windows go through XWayland.
[[nodiscard]] bool isWayland();

/// This program's windows are X11 windows.
[[nodiscard]] bool windowsAreX11();

/// Makes Qt prefer X11 where there is an X server, also in a Wayland session: only there may a
/// window be placed at the status item. Before the application object is made.
void preferX11();

/// Undoes in the environment what preferX11() did, for the children. After the application object
/// was made.
void forgetPreference();

/// There is a display to show windows on; making the application object would end the process
/// otherwise.
[[nodiscard]] bool hasDisplay();

} // namespace torvi::Session
