// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/ProjectAccountsModel.h"

namespace torvi {

AuthState *ProjectAccountsModel::stateManager() const
{
    return m_stateManager;
}

void ProjectAccountsModel::setStateManager(AuthState *stateManager)
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
                this, [this] { update(); });
    }
    Q_EMIT stateManagerChanged();
    update();
}

QString ProjectAccountsModel::projectId() const
{
    return m_projectId;
}

void ProjectAccountsModel::setProjectId(const QString &projectId)
{
    if (m_projectId != projectId) {
        m_projectId = projectId;
        Q_EMIT projectIdChanged();
        update();
    }
}

QList<ServiceAccount> ProjectAccountsModel::savedAccounts() const
{
    return m_stateManager
        ? m_stateManager->manager().serviceAccountStore().serviceAccounts(m_projectId)
        : QList<ServiceAccount>();
}

} // namespace torvi
