// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/ServiceAccount.h"
#include "VeldraUI/AuthState.h"
#include "VeldraUI/RowModel.h"

#include <QtQml/qqmlregistration.h>

namespace torvi {

/// The service accounts saved for one project, in the order in which they were saved.
class SavedAccountListModel : public RowModel<ServiceAccount>
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(torvi::AuthState *stateManager READ stateManager WRITE setStateManager NOTIFY
                   stateManagerChanged REQUIRED)
    Q_PROPERTY(QString projectId READ projectId WRITE setProjectId NOTIFY projectIdChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        EmailRole = Qt::UserRole,
        TitleRole, ///< the display name when there is one, else the e-mail
    };

    using RowModel::RowModel;

    [[nodiscard]] AuthState *stateManager() const;
    /// Must outlive this, or be null.
    void setStateManager(AuthState *stateManager);
    [[nodiscard]] QString projectId() const;
    void setProjectId(const QString &projectId);
    [[nodiscard]] int count() const;

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void stateManagerChanged();
    void projectIdChanged();
    void countChanged();

private:
    void update();

    QPointer<AuthState> m_stateManager;
    QString m_projectId;
};

} // namespace torvi
