// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/ActivationPolicy.h"

#include <QtGlobal>

namespace torvi {

/// Whether the application is in the task list. Main thread only; accessory at first.
class ActivationPolicySwitching
{
public:
    virtual ~ActivationPolicySwitching() = default;

    virtual void setActivationPolicy(ActivationPolicy policy) = 0;

protected:
    ActivationPolicySwitching() = default;
    Q_DISABLE_COPY_MOVE(ActivationPolicySwitching)
};

} // namespace torvi
