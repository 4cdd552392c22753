// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/MenubarDisplayFormat.h"

#include <QObject>

#include <optional>

namespace torvi {

/// The user's settings. Main thread only.
class SettingsStoring : public QObject
{
    Q_OBJECT

public:
    /// A stored wish only: nothing registers Torvi with the session.
    [[nodiscard]] virtual bool launchAtLogin() const = 0;
    virtual void setLaunchAtLogin(bool launchAtLogin) = 0;

    [[nodiscard]] virtual MenubarDisplayFormat menubarDisplayFormat() const = 0;
    virtual void setMenubarDisplayFormat(MenubarDisplayFormat format) = 0;

    /// Absent means that gcloud is searched for.
    [[nodiscard]] virtual std::optional<QString> gcloudPathOverride() const = 0;
    virtual void setGcloudPathOverride(const std::optional<QString> &path) = 0;

    /// In minutes; stored as given. Nothing is driven by it.
    [[nodiscard]] virtual qint64 refreshIntervalMinutes() const = 0;
    virtual void setRefreshIntervalMinutes(qint64 minutes) = 0;

Q_SIGNALS:
    void changed();
};

} // namespace torvi
