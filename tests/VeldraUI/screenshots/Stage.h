// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/VeldraUI/World.h"

#include <QImage>
#include <QQuickView>

namespace torvi {

/// A view over a world of its own, and hands that use it.
///
/// Items are found by a path of their object names, as in "projects/filter".
class Stage final
{
public:
    Stage();

    World world;

    /// Shows the popover, once the world is as it should be; gcloud never ends listing projects,
    /// or fails to, where the scene says so.
    void open();

    enum class Appearance { light, dark };

    /// Shows a page of the manager window, as in "adc".
    void openManager(const QString &page, const QSize &size, Appearance appearance);
    void hover(const QString &path);
    void press(const QString &path);
    void click(const QString &path, Qt::MouseButton button = Qt::LeftButton);
    void key(int key, Qt::KeyboardModifiers modifiers = {});
    void type(const QString &text);
    void scrollTo(double y);
    /// Turns the wheel over an item, downwards.
    void scroll(const QString &path, int points);
    [[nodiscard]] QImage picture();

private:
    void load(const QString &view);
    [[nodiscard]] QQuickItem *item(const QString &path) const;
    [[nodiscard]] QPoint centreOf(const QString &path) const;

    QQuickView m_view;
};

} // namespace torvi
