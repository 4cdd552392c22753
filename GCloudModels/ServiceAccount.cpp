// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudModels/ServiceAccount.h"

#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace torvi {

QJsonObject ServiceAccount::encoded() const
{
    QJsonObject object{ { u"email"_s, email }, { u"projectId"_s, projectId } };
    if (displayName) {
        object.insert(u"displayName"_s, *displayName);
    }
    return object;
}

std::optional<ServiceAccount> ServiceAccount::decoded(const QJsonValue &value)
{
    const QJsonValue email = value[u"email"_s];
    const QJsonValue projectId = value[u"projectId"_s];
    const QJsonValue displayName = value[u"displayName"_s];
    if (!email.isString() || !projectId.isString()) {
        return std::nullopt;
    }
    if (displayName.isString()) {
        return ServiceAccount{ email.toString(), projectId.toString(), displayName.toString() };
    }
    if (displayName.isUndefined() || displayName.isNull()) {
        return ServiceAccount{ email.toString(), projectId.toString(), std::nullopt };
    }
    return std::nullopt;
}

} // namespace torvi
