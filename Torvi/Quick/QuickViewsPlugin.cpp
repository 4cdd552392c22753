// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Quick/QuickViewsPlugin.h"

#include "Torvi/Quick/QuickViewFactory.h"

#include <utility>

namespace torvi {

std::unique_ptr<ViewFactory> QuickViewsPlugin::makeViews(ViewSurroundings surroundings)
{
    return std::make_unique<QuickViewFactory>(std::move(surroundings));
}

} // namespace torvi
