// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/ActivationPolicySwitching.h"

#include <QObject>

class QWindow;

namespace torvi {

/// Shows the application's ordinary windows in the task list while it is regular; never its
/// popover.
///
/// On X11 by the window manager's states; a Wayland desktop decides by the kind of window alone.
class TaskListPolicy final : public QObject, public ActivationPolicySwitching
{
    Q_OBJECT

public:
    TaskListPolicy();

    void setActivationPolicy(ActivationPolicy policy) override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    [[nodiscard]] bool isListed(const QWindow &window) const;

    ActivationPolicy m_policy = ActivationPolicy::accessory;
};

} // namespace torvi
