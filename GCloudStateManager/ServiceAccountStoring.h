// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/ServiceAccount.h"

#include <QList>
#include <QMap>
#include <QObject>

namespace torvi {

/// The service accounts that the user saved, by project. Main thread only.
class ServiceAccountStoring : public QObject
{
    Q_OBJECT

public:
    using AccountsByProject = QMap<QString, QList<ServiceAccount>>;

    /// In the order they were added; empty for an unknown project.
    [[nodiscard]] virtual QList<ServiceAccount>
    serviceAccounts(const QString &forProject) const = 0;
    /// Adds under the account's project, unless an account with that e-mail is saved there already.
    virtual void addServiceAccount(const ServiceAccount &account) = 0;
    virtual void removeServiceAccount(const QString &email, const QString &fromProject) = 0;
    [[nodiscard]] virtual AccountsByProject allServiceAccounts() const = 0;

Q_SIGNALS:
    void changed();
};

} // namespace torvi
