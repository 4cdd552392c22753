// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

namespace torvi {

/// How the application presents itself beside its status item.
enum class ActivationPolicy {
    accessory, ///< no entry in the task list
    regular, ///< an ordinary application: its windows are in the task list
};

} // namespace torvi
