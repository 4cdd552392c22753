// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

/// `torvi --doctor`: what torvictl's says, and the desktop.
namespace torvi::Doctor {

/// Prints it, with an event loop of its own for that time. Needs an application object. Yields the
/// exit code: 1 when there is no gcloud.
[[nodiscard]] int run();

} // namespace torvi::Doctor
