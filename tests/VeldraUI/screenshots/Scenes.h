// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace torvi {

class Stage;

/// One state of the popover that has a picture.
struct Scene
{
    QString name;
    std::function<void(Stage &)> act;
};

[[nodiscard]] std::vector<Scene> scenes();

} // namespace torvi
