// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/ViewsPlugin.h"

#include <QObject>

namespace torvi {

/// The entry of the module that has the views in it.
class QuickViewsPlugin final : public QObject, public ViewsPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TORVI_VIEWS_PLUGIN_IID)
    Q_INTERFACES(torvi::ViewsPlugin)

public:
    [[nodiscard]] std::unique_ptr<ViewFactory> makeViews(ViewSurroundings surroundings) override;
};

} // namespace torvi
