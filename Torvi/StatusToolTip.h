// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/AuthStateManager.h"
#include "Torvi/StatusItem.h"

#include <QObject>
#include <QProcessEnvironment>

namespace torvi {

/// Keeps the status item's tool tip at the whole active context, whatever the title leaves out, and
/// at what `environment` overrides of it. Main thread only.
///
/// Lifetime: what it is given must outlive it.
class StatusToolTip final : public QObject
{
    Q_OBJECT

public:
    StatusToolTip(StatusItem &statusItem, const AuthStateManager &stateManager,
                  const QProcessEnvironment &environment
                  = QProcessEnvironment::systemEnvironment());

private:
    void update();

    StatusItem &m_statusItem;
    const AuthStateManager &m_stateManager;
    QProcessEnvironment m_environment;
};

} // namespace torvi
