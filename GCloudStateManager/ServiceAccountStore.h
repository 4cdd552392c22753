// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/ServiceAccountStoring.h"

#include <memory>

namespace torvi {

class Preferences;

/// The saved service accounts, read once and stored whole at every change, as the bytes of a JSON
/// object: project id -> array of accounts (see ServiceAccount::encoded).
class ServiceAccountStore final : public ServiceAccountStoring
{
    Q_OBJECT

public:
    /// Bytes that are not of this form count as no account at all; the next change replaces them.
    explicit ServiceAccountStore(std::shared_ptr<Preferences> preferences);

    [[nodiscard]] QList<ServiceAccount> serviceAccounts(const QString &forProject) const override;
    void addServiceAccount(const ServiceAccount &account) override;
    void removeServiceAccount(const QString &email, const QString &fromProject) override;
    [[nodiscard]] AccountsByProject allServiceAccounts() const override;

private:
    void save();

    const std::shared_ptr<Preferences> m_preferences;
    AccountsByProject m_accountsByProject;
};

} // namespace torvi
