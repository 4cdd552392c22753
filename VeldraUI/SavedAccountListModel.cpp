// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/SavedAccountListModel.h"

#include "VeldraUI/NextRows.h"

namespace torvi {

AuthState *SavedAccountListModel::stateManager() const
{
    return m_stateManager;
}

void SavedAccountListModel::setStateManager(AuthState *stateManager)
{
    if (m_stateManager == stateManager) {
        return;
    }
    if (m_stateManager) {
        m_stateManager->manager().serviceAccountStore().disconnect(this);
    }
    m_stateManager = stateManager;
    if (stateManager) {
        connect(&stateManager->manager().serviceAccountStore(), &ServiceAccountStoring::changed,
                this, &SavedAccountListModel::update);
    }
    Q_EMIT stateManagerChanged();
    update();
}

QString SavedAccountListModel::projectId() const
{
    return m_projectId;
}

void SavedAccountListModel::setProjectId(const QString &projectId)
{
    if (m_projectId != projectId) {
        m_projectId = projectId;
        Q_EMIT projectIdChanged();
        update();
    }
}

int SavedAccountListModel::count() const
{
    return rowCount();
}

QVariant SavedAccountListModel::data(const QModelIndex &index, int role) const
{
    const ServiceAccount &account = rowAt(index);
    switch (role) {
    case EmailRole:
        return account.email;
    case TitleRole:
        return account.displayName.value_or(account.email);
    default:
        return {};
    }
}

QHash<int, QByteArray> SavedAccountListModel::roleNames() const
{
    return { { EmailRole, "email" }, { TitleRole, "title" } };
}

void SavedAccountListModel::update()
{
    const QList<ServiceAccount> accounts = m_stateManager
        ? m_stateManager->manager().serviceAccountStore().serviceAccounts(m_projectId)
        : QList<ServiceAccount>();
    const int before = count();
    change({ accounts.begin(), accounts.end() },
           nextRowsByIdentity(rows(), accounts, &ServiceAccount::email));
    if (count() != before) {
        Q_EMIT countChanged();
    }
}

} // namespace torvi
