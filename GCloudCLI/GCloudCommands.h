// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/GCloudCommand.h"

#include <QStringList>

/// The one table of gcloud's argument lists; nothing else builds them.
namespace torvi::GCloudCommands {

/// The arguments of `command`, without the executable. A payload stands in them as it is, neither
/// quoted nor escaped: no shell is between Torvi and gcloud.
[[nodiscard]] QStringList arguments(const GCloudCommand &command);

} // namespace torvi::GCloudCommands
