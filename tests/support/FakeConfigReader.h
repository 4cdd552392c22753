// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/GCloudConfigReading.h"
#include "GCloudModels/AppError.h"

#include <QMap>

#include <functional>
#include <optional>

namespace torvi {

/// A configuration directory made of fields; keeps the order in which it was read.
class FakeConfigReader final : public GCloudConfigReading
{
public:
    QString activeName = QStringLiteral("default");
    QStringList names{ QStringLiteral("default") };
    QMap<QString, ConfigProperties> properties;
    ADCState adcState;
    QStringList accounts;

    /// The read with this name throws configFileUnreadable with the name as its path.
    QString failingRead;
    mutable QStringList reads;

    [[nodiscard]] QString readActiveConfigName() const override
    {
        note(QStringLiteral("activeName"));
        return activeName;
    }

    [[nodiscard]] ConfigProperties readConfigProperties(const QString &name) const override
    {
        note(QStringLiteral("properties of ") + name);
        return properties.value(name);
    }

    [[nodiscard]] QStringList readAllConfigNames() const override
    {
        note(QStringLiteral("names"));
        return names;
    }

    [[nodiscard]] ADCState readADCState() const override
    {
        note(QStringLiteral("adcState"));
        return adcState;
    }

    [[nodiscard]] QStringList readAuthenticatedAccounts() const override
    {
        note(QStringLiteral("accounts"));
        return accounts;
    }

    [[nodiscard]] QString configDirectory() const override
    {
        return QStringLiteral("/nowhere");
    }

private:
    void note(const QString &read) const
    {
        reads.append(read);
        if (read == failingRead) {
            throw AppError::configFileUnreadable(read);
        }
    }
};

} // namespace torvi
