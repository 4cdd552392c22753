// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/AccountType.h"
#include "GCloudModels/HashFields.h"

#include <QString>

namespace torvi {

/// One credentialed gcloud account.
struct Account
{
    QString email; ///< the identity of the record
    bool isActive = false;
    AccountType accountType = AccountType::user;

    [[nodiscard]] const QString &id() const
    {
        return email;
    }

    bool operator==(const Account &) const = default;
};

[[nodiscard]] inline size_t qHash(const Account &account, size_t seed = 0)
{
    return hashFields(seed, account.email, account.isActive, account.accountType);
}

} // namespace torvi
