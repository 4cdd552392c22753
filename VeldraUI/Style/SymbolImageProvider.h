// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QQuickImageProvider>

namespace torvi {

/// Draws the symbols for QML: `image://symbols/NAME/AARRGGBB`, drawn in that one colour at exactly
/// the size that is asked for. Without a size it is the drawing's own, 16 x 16 pixels.
///
/// Errors: an unknown name or a malformed colour gives no image, which QML reports as a warning.
/// Thread: any; it holds no state.
class SymbolImageProvider final : public QQuickImageProvider
{
public:
    SymbolImageProvider();

    /// `requestedSize` is in device pixels: the scene has applied the screen's scale already.
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

} // namespace torvi
