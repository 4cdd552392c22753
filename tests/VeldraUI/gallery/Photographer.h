// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QQuickView>

namespace torvi {

/// Shows one gallery page and takes its picture. Items named "hover", "press" or "focus" are put in
/// that state one after the other, and their places in the picture come from those moments.
class Photographer final
{
public:
    Photographer(const QString &page, bool dark);

    /// Empty, with the reason on standard error, when the page does not load or QML warns.
    [[nodiscard]] QImage picture();

private:
    /// Waits until the page's object named "ready", if it has one, says so in its `value`.
    bool isReady();
    void pose(QQuickItem &item, QImage &picture);
    void poseOne(QQuickItem &item, QImage &picture);

    QQuickView m_view;
    bool m_warned = false;
};

} // namespace torvi
