// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/AuthContext.h"
#include "GCloudStateManager/EnvironmentOverride.h"

#include <QByteArray>
#include <QList>

#include <optional>

namespace torvi {

// The compact JSON of Torvi's records, as torvictl prints them: members are the fields' names in
// their order, enums their raw values, absent optionals null. Scripts lean on this form; it is not
// the one in which preferences are stored.

[[nodiscard]] QByteArray json(const QString &text);
[[nodiscard]] QByteArray json(bool value);
[[nodiscard]] QByteArray json(qint64 value);
/// In ISO 8601, UTC.
[[nodiscard]] QByteArray json(const QDateTime &time);
[[nodiscard]] QByteArray json(const Project &project);
[[nodiscard]] QByteArray json(const Account &account);
[[nodiscard]] QByteArray json(const ConfigProperties &properties);
[[nodiscard]] QByteArray json(const Configuration &configuration);
[[nodiscard]] QByteArray json(const ServiceAccount &account);
[[nodiscard]] QByteArray json(const ADCState &state);
[[nodiscard]] QByteArray json(const AuthContext &context);
[[nodiscard]] QByteArray json(const EnvironmentOverride &environmentOverride);

template <typename T>
[[nodiscard]] QByteArray json(const std::optional<T> &value)
{
    return value ? json(*value) : QByteArrayLiteral("null");
}

template <typename T>
[[nodiscard]] QByteArray json(const QList<T> &values)
{
    QByteArrayList elements;
    elements.reserve(values.size());
    for (const T &value : values) {
        elements.append(json(value));
    }
    return '[' + elements.join(',') + ']';
}

/// Builds an object member by member; QJsonObject would sort them.
class JsonObject
{
public:
    template <typename T>
    JsonObject &member(const char *name, const T &value)
    {
        m_members.append('"' + QByteArray(name) + "\":" + json(value));
        return *this;
    }

    [[nodiscard]] QByteArray text() const;

private:
    QByteArrayList m_members;
};

} // namespace torvi
