// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/HashFields.h"

#include <QString>

#include <optional>

class QJsonObject;
class QJsonValue;

namespace torvi {

/// A service account, either listed by gcloud for a project or saved by the user.
struct ServiceAccount
{
    QString email; ///< the identity of the record
    QString projectId; ///< for a listed account: the project that was listed
    std::optional<QString> displayName;

    [[nodiscard]] const QString &id() const
    {
        return email;
    }

    /// Members "email", "projectId" and, only when present, "displayName".
    [[nodiscard]] QJsonObject encoded() const;

    /// The inverse of encoded(). Nothing when `value` is no object, a required member is missing or
    /// a member has the wrong type; a null "displayName" is absent.
    [[nodiscard]] static std::optional<ServiceAccount> decoded(const QJsonValue &value);

    bool operator==(const ServiceAccount &) const = default;
};

[[nodiscard]] inline size_t qHash(const ServiceAccount &account, size_t seed = 0)
{
    return hashFields(seed, account.email, account.projectId, account.displayName);
}

} // namespace torvi
