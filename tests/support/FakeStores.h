// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/FavoritesStoring.h"
#include "GCloudStateManager/RecentStoring.h"
#include "GCloudStateManager/ServiceAccountStoring.h"
#include "GCloudStateManager/SettingsStoring.h"

namespace torvi {

class FakeFavoritesStore final : public FavoritesStoring
{
public:
    QSet<QString> ids;

    [[nodiscard]] bool isPinned(const QString &projectId) const override
    {
        return ids.contains(projectId);
    }

    void pin(const QString &projectId) override
    {
        ids.insert(projectId);
        Q_EMIT changed();
    }

    void unpin(const QString &projectId) override
    {
        ids.remove(projectId);
        Q_EMIT changed();
    }

    [[nodiscard]] QSet<QString> allPinned() const override
    {
        return ids;
    }
};

class FakeRecentStore final : public RecentStoring
{
public:
    QStringList ids;

    void recordUsage(const QString &projectId) override
    {
        ids.removeAll(projectId);
        ids.prepend(projectId);
        Q_EMIT changed();
    }

    [[nodiscard]] QStringList recentProjectIds() const override
    {
        return ids;
    }
};

class FakeServiceAccountStore final : public ServiceAccountStoring
{
public:
    AccountsByProject accounts;

    [[nodiscard]] QList<ServiceAccount> serviceAccounts(const QString &forProject) const override
    {
        return accounts.value(forProject);
    }

    void addServiceAccount(const ServiceAccount &account) override
    {
        accounts[account.projectId].append(account);
        Q_EMIT changed();
    }

    void removeServiceAccount(const QString &email, const QString &fromProject) override
    {
        accounts[fromProject].removeIf(
            [&email](const ServiceAccount &account) { return account.email == email; });
        Q_EMIT changed();
    }

    [[nodiscard]] AccountsByProject allServiceAccounts() const override
    {
        return accounts;
    }
};

class FakeSettingsStore final : public SettingsStoring
{
public:
    bool isLaunchedAtLogin = false;
    MenubarDisplayFormat format = MenubarDisplayFormat::iconAndProject;
    std::optional<QString> path;
    qint64 interval = 5;

    [[nodiscard]] bool launchAtLogin() const override
    {
        return isLaunchedAtLogin;
    }

    void setLaunchAtLogin(bool launchAtLogin) override
    {
        isLaunchedAtLogin = launchAtLogin;
        Q_EMIT changed();
    }

    [[nodiscard]] MenubarDisplayFormat menubarDisplayFormat() const override
    {
        return format;
    }

    void setMenubarDisplayFormat(MenubarDisplayFormat newFormat) override
    {
        format = newFormat;
        Q_EMIT changed();
    }

    [[nodiscard]] std::optional<QString> gcloudPathOverride() const override
    {
        return path;
    }

    void setGcloudPathOverride(const std::optional<QString> &newPath) override
    {
        path = newPath;
        Q_EMIT changed();
    }

    [[nodiscard]] qint64 refreshIntervalMinutes() const override
    {
        return interval;
    }

    void setRefreshIntervalMinutes(qint64 minutes) override
    {
        interval = minutes;
        Q_EMIT changed();
    }
};

} // namespace torvi
