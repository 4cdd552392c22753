// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/GlobalEventMonitoring.h"

#include <QObject>

namespace torvi {

/// Listens to the user going to another application, which is all that a Wayland session tells
/// about clicks elsewhere. Main thread only.
class FocusLossListener final : public QObject, public GlobalEventMonitoring::Token
{
    Q_OBJECT

public:
    explicit FocusLossListener(GlobalEventMonitoring::Block block);
};

} // namespace torvi
