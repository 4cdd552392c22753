// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/SettingsStoring.h"

#include <QString>

#include <functional>

namespace torvi {

/// A new value for one setting, to be applied to the stored settings.
using SettingChange = std::function<void(SettingsStoring &)>;

/// Reads the words of `settings set NAME VALUE`; names are the settings' property names.
/// Errors: throws std::invalid_argument, with a message for the user in UTF-8, for an unknown name
/// or a value of the wrong type.
[[nodiscard]] SettingChange settingChange(const QString &name, const QString &value);

} // namespace torvi
