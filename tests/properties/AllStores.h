// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/FavoritesStore.h"
#include "GCloudStateManager/Preferences.h"
#include "GCloudStateManager/RecentStore.h"
#include "GCloudStateManager/ServiceAccountStore.h"
#include "GCloudStateManager/SettingsStore.h"

#include <QFile>
#include <QTemporaryDir>

namespace torvi {

using namespace Qt::StringLiterals;

/// What all the stores hold; as constructed, what they hold at first.
struct Contents
{
    QSet<QString> pinned;
    QStringList recents;
    ServiceAccountStoring::AccountsByProject accounts;
    bool launchAtLogin = false;
    MenubarDisplayFormat format = MenubarDisplayFormat::iconAndProject;
    std::optional<QString> gcloudPath;
    qint64 refreshInterval = 5;

    bool operator==(const Contents &) const = default;
};

/// The stores on one file, as they are in the application.
class AllStores final
{
public:
    explicit AllStores(const QString &path)
        : m_preferences(std::make_shared<Preferences>(path))
    {
    }

    [[nodiscard]] Contents contents() const
    {
        return { m_favorites.allPinned(),
                 m_recents.recentProjectIds(),
                 m_accounts.allServiceAccounts(),
                 m_settings.launchAtLogin(),
                 m_settings.menubarDisplayFormat(),
                 m_settings.gcloudPathOverride(),
                 m_settings.refreshIntervalMinutes() };
    }

    /// Saves once and is never without effect; what it does follows from the number alone.
    void change(int number)
    {
        const QString project = u"project-%1"_s.arg(number % 301);
        switch (number % 5) {
        case 0:
            m_favorites.isPinned(project) ? m_favorites.unpin(project) : m_favorites.pin(project);
            break;
        case 1:
            m_recents.recordUsage(project);
            break;
        case 2:
            changeAccount({ u"robot@"_s + project, u"home"_s, u"Röbot, \"R\""_s });
            break;
        case 3:
            m_settings.setRefreshIntervalMinutes(1 + number % 60);
            break;
        default:
            m_settings.setGcloudPathOverride(number % 2 == 0 ? std::optional(project)
                                                             : std::nullopt);
        }
    }

private:
    void changeAccount(const ServiceAccount &account)
    {
        if (m_accounts.serviceAccounts(account.projectId).contains(account)) {
            m_accounts.removeServiceAccount(account.email, account.projectId);
        } else {
            m_accounts.addServiceAccount(account);
        }
    }

    std::shared_ptr<Preferences> m_preferences;
    FavoritesStore m_favorites{ m_preferences };
    RecentStore m_recents{ m_preferences };
    ServiceAccountStore m_accounts{ m_preferences };
    SettingsStore m_settings{ m_preferences };
};

/// What another process finds in the file: QSettings keeps what it knows of a path, hence the copy.
inline Contents contentsOf(const QString &path)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(u"copy.ini"_s);
    QFile::copy(path, copy);
    return AllStores(copy).contents();
}

} // namespace torvi
