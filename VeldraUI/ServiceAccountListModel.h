// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/ServiceAccount.h"
#include "VeldraUI/AuthState.h"
#include "VeldraUI/RowModel.h"

#include <QtQml/qqmlregistration.h>

namespace torvi {

/// A service account as the manager window lists it.
struct ServiceAccountRow
{
    ServiceAccount account;
    bool isSaved = false;

    bool operator==(const ServiceAccountRow &) const = default;
};

/// The service accounts of one project: first those that are saved for it, then those of the last
/// discovery. One that is both is listed as saved only.
class ServiceAccountListModel : public RowModel<ServiceAccountRow>
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(torvi::AuthState *stateManager READ stateManager WRITE setStateManager NOTIFY
                   stateManagerChanged REQUIRED)
    Q_PROPERTY(QString projectId READ projectId WRITE setProjectId NOTIFY projectIdChanged)
    Q_PROPERTY(int savedCount READ savedCount NOTIFY changed)
    Q_PROPERTY(int discoveredCount READ discoveredCount NOTIFY changed)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(bool discoveryFailed READ discoveryFailed NOTIFY changed)

public:
    enum Role {
        EmailRole = Qt::UserRole,
        DisplayNameRole, ///< empty when there is none
        IsSavedRole,
    };

    using RowModel::RowModel;

    [[nodiscard]] AuthState *stateManager() const;
    /// Must outlive this, or be null.
    void setStateManager(AuthState *stateManager);
    [[nodiscard]] QString projectId() const;
    void setProjectId(const QString &projectId);
    [[nodiscard]] int savedCount() const;
    /// Of those listed, that is without the ones that are saved.
    [[nodiscard]] int discoveredCount() const;
    /// A discovery is running; of overlapping ones, until the first ends.
    [[nodiscard]] bool isLoading() const;
    /// The last discovery found no account at all, saved or not, and none has begun since.
    [[nodiscard]] bool discoveryFailed() const;

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Asks gcloud, from the event loop on. Overlapping discoveries all run; the last to end wins.
    Q_INVOKABLE void discover(const QString &projectId);
    /// Saves an account of the last discovery.
    Q_INVOKABLE void save(const QString &email);
    /// Saves an account for the project, as it was typed; an empty display name is none.
    Q_INVOKABLE void add(const QString &email, const QString &displayName);
    /// From those saved for the project.
    Q_INVOKABLE void remove(const QString &email);

Q_SIGNALS:
    void stateManagerChanged();
    void projectIdChanged();
    void changed();

private:
    QCoro::Task<> discoverNow(QString projectId);
    void update();

    QPointer<AuthState> m_stateManager;
    QString m_projectId;
    QList<ServiceAccount> m_discovered;
    int m_savedCount = 0;
    bool m_isLoading = false;
    bool m_discoveryFailed = false;
};

} // namespace torvi
