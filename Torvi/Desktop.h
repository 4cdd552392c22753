// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/ActivationPolicySwitching.h"
#include "Torvi/GlobalEventMonitoring.h"
#include "Torvi/StatusItem.h"
#include "Torvi/ViewFactory.h"

#include <memory>

namespace torvi {

/// The desktop that the application runs on. Main thread only.
class Desktop
{
public:
    virtual ~Desktop() = default;

    /// An item as wide as its content.
    [[nodiscard]] virtual std::unique_ptr<StatusItem> makeStatusItem() = 0;
    [[nodiscard]] virtual GlobalEventMonitoring &globalEvents() = 0;
    [[nodiscard]] virtual ActivationPolicySwitching &activationPolicy() = 0;
    [[nodiscard]] virtual ViewFactory &views() = 0;

protected:
    Desktop() = default;
    Q_DISABLE_COPY_MOVE(Desktop)
};

} // namespace torvi
