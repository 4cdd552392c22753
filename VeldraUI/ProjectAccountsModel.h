// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/ServiceAccount.h"
#include "VeldraUI/AuthState.h"
#include "VeldraUI/RowModel.h"

#include <QtQml/qqmlregistration.h>

namespace torvi {

/// A service account as a list shows it.
struct ServiceAccountRow
{
    ServiceAccount account;
    bool isSaved = false;

    bool operator==(const ServiceAccountRow &) const = default;
};

/// A list of service accounts that follows those that are saved for one project.
class ProjectAccountsModel : public RowModel<ServiceAccountRow>
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(torvi::AuthState *stateManager READ stateManager WRITE setStateManager NOTIFY
                   stateManagerChanged REQUIRED)
    Q_PROPERTY(QString projectId READ projectId WRITE setProjectId NOTIFY projectIdChanged)

public:
    [[nodiscard]] AuthState *stateManager() const;
    /// Must outlive this, or be null.
    void setStateManager(AuthState *stateManager);
    [[nodiscard]] QString projectId() const;
    void setProjectId(const QString &projectId);

Q_SIGNALS:
    void stateManagerChanged();
    void projectIdChanged();

protected:
    using RowModel::RowModel;

    /// Those saved for the project; none without a state manager.
    [[nodiscard]] QList<ServiceAccount> savedAccounts() const;
    /// Brings the rows up to date: what is saved, or for which project, has changed.
    virtual void update() = 0;

private:
    QPointer<AuthState> m_stateManager;
    QString m_projectId;
};

} // namespace torvi
