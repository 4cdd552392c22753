// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/ViewFactory.h"
#include "VeldraUI/Clipboard.h"

#include <QtPlugin>

class QWindow;

namespace torvi {

/// What the views need of the desktop that they are on.
struct ViewSurroundings
{
    Clipboard &clipboard; ///< must outlive the views
    /// Raises a window that is shown and gives it the keyboard.
    std::function<void(QWindow &)> bringToFront;
    /// Tells, now and whenever that changes while the window lives, whether it is to be dark.
    std::function<void(QWindow &, std::function<void(bool isDark)>)> followColorScheme;
};

/// What the module of the views exports.
class ViewsPlugin
{
public:
    virtual ~ViewsPlugin() = default;

    [[nodiscard]] virtual std::unique_ptr<ViewFactory> makeViews(ViewSurroundings surroundings) = 0;

protected:
    ViewsPlugin() = default;
    Q_DISABLE_COPY_MOVE(ViewsPlugin)
};

} // namespace torvi

/// Program and module fit together only when they are of one version.
#define TORVI_VIEWS_PLUGIN_IID "com.veldra.Torvi.Views/" TORVI_VERSION
Q_DECLARE_INTERFACE(torvi::ViewsPlugin, TORVI_VIEWS_PLUGIN_IID)
