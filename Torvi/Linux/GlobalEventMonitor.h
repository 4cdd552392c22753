// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/GlobalEventMonitoring.h"

namespace torvi {

/// Raw presses on an X server; in a Wayland session, where an X server sees only some of the
/// clicks, or none, the loss of the focus as well.
class GlobalEventMonitor final : public GlobalEventMonitoring
{
public:
    [[nodiscard]] std::unique_ptr<Token> addGlobalMonitor(Qt::MouseButtons mask,
                                                          Block block) override;
    void removeMonitor(std::unique_ptr<Token> token) override;
};

} // namespace torvi
