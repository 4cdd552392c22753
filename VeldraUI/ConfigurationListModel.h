// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/Configuration.h"
#include "VeldraUI/RowModel.h"

#include <QtQml/qqmlregistration.h>

namespace torvi {

class AuthStateManager;

/// The named gcloud configurations, in the state manager's order.
class ConfigurationListModel final : public RowModel<Configuration>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Taken from AuthState.configurations")

public:
    enum Role {
        NameRole = Qt::UserRole,
        IsActiveRole, ///< as the record itself says
        HasProjectRole, ///< tells a project that is not set from one that is set to nothing
        ProjectIdRole,
        HasAccountRole,
        AccountRole,
        HasRegionRole,
        RegionRole,
    };

    /// `manager` must outlive this.
    explicit ConfigurationListModel(AuthStateManager &manager, QObject *parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    void update();

    AuthStateManager &m_manager;
};

} // namespace torvi
