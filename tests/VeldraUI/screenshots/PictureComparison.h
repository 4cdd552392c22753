// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

namespace torvi {

/// The share of pixels that differ visibly from the reference, 0 to 1; 1 when the sizes differ.
///
/// A pixel may stand one beside its place: the edges of letters are drawn differently by each
/// version of the font renderer.
[[nodiscard]] double shareThatDiffers(const QImage &picture, const QImage &reference);

/// The most that two pictures of the same state may differ; a text that changed is above it.
inline constexpr double kTolerance = 0.0008;

} // namespace torvi
