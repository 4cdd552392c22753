// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/CommandLine.h"

#include <QString>

#include <optional>

namespace torvi {

/// The action that stands for `request` on the bus; absent for a plain start, which is no action.
[[nodiscard]] std::optional<QString> actionName(CommandLine::Request request);

/// The request that an action stands for; absent for an unknown one.
[[nodiscard]] std::optional<CommandLine::Request> requestNamed(const QString &action);

} // namespace torvi
