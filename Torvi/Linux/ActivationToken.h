// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

/// The permission to bring a window to the front that comes with a click on the panel or with a
/// request of another program; Wayland asks for one. Main thread only.
namespace torvi::ActivationToken {

/// Keeps `token` for the next window that comes to the front.
void keep(const QString &token);

/// Runs `bringToFront` with the kept token at hand, which is then used up.
void use(const std::function<void()> &bringToFront);

} // namespace torvi::ActivationToken
