// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/Account.h"
#include "VeldraUI/RowModel.h"

#include <QtQml/qqmlregistration.h>

namespace torvi {

class AuthStateManager;

/// The credentialed accounts, in the state manager's order.
class AccountListModel final : public RowModel<Account>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Taken from AuthState.accounts")

public:
    enum Role {
        EmailRole = Qt::UserRole,
        IsActiveRole, ///< as the record itself says
        IsServiceAccountRole,
    };

    /// `manager` must outlive this.
    explicit AccountListModel(AuthStateManager &manager, QObject *parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    void update();

    AuthStateManager &m_manager;
};

} // namespace torvi
