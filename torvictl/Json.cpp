// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "torvictl/Json.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace torvi {

QByteArray json(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{ text }).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2);
}

QByteArray json(bool value)
{
    return value ? QByteArrayLiteral("true") : QByteArrayLiteral("false");
}

QByteArray json(qint64 value)
{
    return QByteArray::number(value);
}

QByteArray json(const QDateTime &time)
{
    return json(time.toUTC().toString(Qt::ISODateWithMs));
}

QByteArray json(const Project &project)
{
    return JsonObject()
        .member("id", project.id)
        .member("name", project.name)
        .member("projectNumber", project.projectNumber)
        .member("isPinned", project.isPinned)
        .member("lastUsed", project.lastUsed)
        .text();
}

QByteArray json(const Account &account)
{
    return JsonObject()
        .member("email", account.email)
        .member("isActive", account.isActive)
        .member("accountType", rawValue(account.accountType))
        .text();
}

QByteArray json(const ConfigProperties &properties)
{
    return JsonObject()
        .member("project", properties.project)
        .member("account", properties.account)
        .member("region", properties.region)
        .member("zone", properties.zone)
        .member("impersonateServiceAccount", properties.impersonateServiceAccount)
        .text();
}

QByteArray json(const Configuration &configuration)
{
    return JsonObject()
        .member("name", configuration.name)
        .member("isActive", configuration.isActive)
        .member("properties", configuration.properties)
        .text();
}

QByteArray json(const ServiceAccount &account)
{
    return JsonObject()
        .member("email", account.email)
        .member("projectId", account.projectId)
        .member("displayName", account.displayName)
        .text();
}

QByteArray json(const ADCState &state)
{
    return JsonObject()
        .member("type", rawValue(state.type))
        .member("quotaProject", state.quotaProject)
        .member("clientEmail", state.clientEmail)
        .member("isValid", state.isValid)
        .text();
}

QByteArray json(const AuthContext &context)
{
    return JsonObject()
        .member("activeProject", context.activeProject)
        .member("activeAccount", context.activeAccount)
        .member("activeConfiguration", context.activeConfiguration)
        .member("impersonatedServiceAccount", context.impersonatedServiceAccount)
        .member("adcState", context.adcState)
        .text();
}

QByteArray json(const EnvironmentOverride &environmentOverride)
{
    return JsonObject()
        .member("variable", environmentOverride.variable)
        .member("value", environmentOverride.value)
        .text();
}

QByteArray JsonObject::text() const
{
    return '{' + m_members.join(',') + '}';
}

} // namespace torvi
