// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

class QWindow;

/// States that a window manager keeps of an X11 window; without effect on other platforms. Main
/// thread only.
namespace torvi::WindowState {

/// Whether the task list shows `window`, which is about to be shown.
void startInTaskList(const QWindow &window, bool isListed);

/// Whether the task list shows `window`, which is shown already.
void changeInTaskList(const QWindow &window, bool isListed);

} // namespace torvi::WindowState
