// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/ConfigurationListModel.h"

#include "GCloudStateManager/AuthStateManager.h"
#include "VeldraUI/NextRows.h"

namespace torvi {

ConfigurationListModel::ConfigurationListModel(AuthStateManager &manager, QObject *parent)
    : RowModel(parent)
    , m_manager(manager)
{
    connect(&manager, &AuthStateManager::configurationsChanged, this,
            &ConfigurationListModel::update);
    update();
}

QVariant ConfigurationListModel::data(const QModelIndex &index, int role) const
{
    const Configuration &configuration = rowAt(index);
    switch (role) {
    case NameRole:
        return configuration.name;
    case IsActiveRole:
        return configuration.isActive;
    case HasProjectRole:
        return configuration.properties.project.has_value();
    case ProjectIdRole:
        return configuration.properties.project.value_or(QString());
    case HasAccountRole:
        return configuration.properties.account.has_value();
    case AccountRole:
        return configuration.properties.account.value_or(QString());
    case HasRegionRole:
        return configuration.properties.region.has_value();
    case RegionRole:
        return configuration.properties.region.value_or(QString());
    default:
        return {};
    }
}

QHash<int, QByteArray> ConfigurationListModel::roleNames() const
{
    return { { NameRole, "name" },
             { IsActiveRole, "isActive" },
             { HasProjectRole, "hasProject" },
             { ProjectIdRole, "projectId" },
             { HasAccountRole, "hasAccount" },
             { AccountRole, "account" },
             { HasRegionRole, "hasRegion" },
             { RegionRole, "region" } };
}

void ConfigurationListModel::update()
{
    const QList<Configuration> &configurations = m_manager.configurations();
    change({ configurations.begin(), configurations.end() },
           nextRowsByIdentity(rows(), configurations, &Configuration::name));
}

} // namespace torvi
