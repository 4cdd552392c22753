// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace torvi {

class Stage;

/// One state of a view that has a picture.
struct Scene
{
    QString name;
    std::function<void(Stage &)> act;
};

/// Those of the popover.
[[nodiscard]] std::vector<Scene> scenes();
/// Those of the manager window, light and dark.
[[nodiscard]] std::vector<Scene> managerScenes();

} // namespace torvi
