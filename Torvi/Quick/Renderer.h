// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

/// How the windows are drawn.
namespace torvi::Renderer {

/// Chooses before the first window is made. Software, which starts three times as fast and takes a
/// third of the memory, unless QT_QUICK_BACKEND or TORVI_RENDERER ("opengl", "vulkan") says
/// otherwise.
void choose();

} // namespace torvi::Renderer
