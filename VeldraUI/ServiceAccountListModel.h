// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "VeldraUI/ProjectAccountsModel.h"

namespace torvi {

/// The service accounts of one project: first those that are saved for it, then those of the last
/// discovery. One that is both is listed as saved only.
class ServiceAccountListModel : public ProjectAccountsModel
{
    Q_OBJECT
    QML_ELEMENT
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

    using ProjectAccountsModel::ProjectAccountsModel;

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
    void changed();

private:
    QCoro::Task<> discoverNow(QString projectId);
    void update() override;

    QList<ServiceAccount> m_discovered;
    int m_savedCount = 0;
    bool m_isLoading = false;
    bool m_discoveryFailed = false;
};

} // namespace torvi
