// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/AccountListModel.h"

#include "GCloudStateManager/AuthStateManager.h"
#include "VeldraUI/NextRows.h"

namespace torvi {

AccountListModel::AccountListModel(AuthStateManager &manager, QObject *parent)
    : RowModel(parent)
    , m_manager(manager)
{
    connect(&manager, &AuthStateManager::accountsChanged, this, &AccountListModel::update);
    update();
}

QVariant AccountListModel::data(const QModelIndex &index, int role) const
{
    const Account &account = rowAt(index);
    switch (role) {
    case EmailRole:
        return account.email;
    case IsActiveRole:
        return account.isActive;
    case IsServiceAccountRole:
        return account.accountType == AccountType::serviceAccount;
    default:
        return {};
    }
}

QHash<int, QByteArray> AccountListModel::roleNames() const
{
    return { { EmailRole, "email" },
             { IsActiveRole, "isActive" },
             { IsServiceAccountRole, "isServiceAccount" } };
}

void AccountListModel::update()
{
    const QList<Account> &accounts = m_manager.accounts();
    change({ accounts.begin(), accounts.end() },
           nextRowsByIdentity(rows(), accounts, &Account::email));
}

} // namespace torvi
