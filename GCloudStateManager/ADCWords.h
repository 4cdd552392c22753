// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/ADCType.h"

#include <QString>

/// Words of the views that are also shown where no view is: in the tool tip and in a terminal.
namespace torvi::ADCWords {

/// The kind of application default credentials, in the words of the active-context card.
[[nodiscard]] QString summary(ADCType type);

} // namespace torvi::ADCWords
