// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/SettingsStoring.h"

#include <memory>

namespace torvi {

class Preferences;

/// The settings, read once; each is stored whenever it is set, to the same value too.
class SettingsStore final : public SettingsStoring
{
    Q_OBJECT

public:
    /// A refresh interval beyond 1 to 60 minutes is brought to the nearer of the two; 0 counts as
    /// missing.
    explicit SettingsStore(std::shared_ptr<Preferences> preferences);

    [[nodiscard]] bool launchAtLogin() const override;
    void setLaunchAtLogin(bool launchAtLogin) override;
    [[nodiscard]] MenubarDisplayFormat menubarDisplayFormat() const override;
    void setMenubarDisplayFormat(MenubarDisplayFormat format) override;
    [[nodiscard]] std::optional<QString> gcloudPathOverride() const override;
    void setGcloudPathOverride(const std::optional<QString> &path) override;
    [[nodiscard]] qint64 refreshIntervalMinutes() const override;
    void setRefreshIntervalMinutes(qint64 minutes) override;

private:
    template <typename Value>
    void assign(Value &setting, const Value &value);

    const std::shared_ptr<Preferences> m_preferences;
    bool m_launchAtLogin;
    MenubarDisplayFormat m_menubarDisplayFormat;
    std::optional<QString> m_gcloudPathOverride;
    qint64 m_refreshIntervalMinutes;
};

} // namespace torvi
