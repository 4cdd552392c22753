// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace torvi {

/// The user's home directory: $HOME, or what the user database says when that is unset or empty.
[[nodiscard]] QString homeDirectory();

/// `path` with a leading "~" or "~/" replaced by `home`. Another user's "~name" stays as it is.
[[nodiscard]] QString expandTilde(const QString &path, const QString &home);

} // namespace torvi
