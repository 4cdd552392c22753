// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudJSONParser.h"

#include "GCloudCLI/GCloudJSONRecords.h"
#include "GCloudCLI/JSONDocument.h"
#include "GCloudCLI/JSONObject.h"
#include "GCloudModels/AppError.h"

#include <QCoreApplication>

#include <functional>
#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvi::GCloudJSONParser {

namespace {

template <typename Record, typename Mapping>
auto decodedList(const QString &text, Mapping mapped)
{
    const JSONDocument document(text.toUtf8());
    simdjson::dom::array array;
    if (document.root().get(array) != simdjson::SUCCESS) {
        throw std::runtime_error("the top level must be an array");
    }
    QList<std::invoke_result_t<Mapping, Record &&>> result;
    result.reserve(static_cast<qsizetype>(array.size()));
    std::size_t position = 0;
    for (const simdjson::dom::element element : array) {
        result.append(mapped(Record::decoded(JSONObject(element, ++position))));
    }
    return result;
}

template <typename Record, typename Mapping>
auto parsedList(const QString &text, Mapping mapped)
{
    try {
        return decodedList<Record>(text, mapped);
    } catch (const std::runtime_error &error) {
        throw AppError::parseError(
            QCoreApplication::translate("GCloudJSONParser", "Failed to parse JSON: %1")
                .arg(QString::fromUtf8(error.what())));
    }
}

Project mappedProject(ProjectJSON &&record)
{
    Project project;
    project.id = std::move(record.projectId);
    project.name = std::move(record.name);
    project.projectNumber = std::move(record.projectNumber);
    return project;
}

Account mappedAccount(AccountJSON &&record)
{
    const bool isServiceAccount = record.account_type == rawValue(AccountType::serviceAccount);
    return { .email = std::move(record.account),
             .isActive = record.status == u"ACTIVE"_s,
             .accountType = isServiceAccount ? AccountType::serviceAccount : AccountType::user };
}

/// The other properties are absent: this output is not trusted for them, the files tell them.
Configuration mappedConfiguration(ConfigurationJSON &&record)
{
    ConfigProperties properties;
    if (record.properties && record.properties->core) {
        properties.project = std::move(record.properties->core->project);
        properties.account = std::move(record.properties->core->account);
    }
    return { std::move(record.name), record.is_active, std::move(properties) };
}

ConfigProperties mappedProperties(ConfigPropertiesJSON &&record)
{
    ConfigCoreJSON core = std::move(record.core).value_or(ConfigCoreJSON{});
    ConfigComputeJSON compute = std::move(record.compute).value_or(ConfigComputeJSON{});
    ConfigAuthJSON auth = std::move(record.auth).value_or(ConfigAuthJSON{});
    return { .project = std::move(core.project),
             .account = std::move(core.account),
             .region = std::move(compute.region),
             .zone = std::move(compute.zone),
             .impersonateServiceAccount = std::move(auth.impersonate_service_account) };
}

} // namespace

QList<Project> parseProjects(const QString &text)
{
    return parsedList<ProjectJSON>(text, mappedProject);
}

QList<Account> parseAccounts(const QString &text)
{
    return parsedList<AccountJSON>(text, mappedAccount);
}

QList<Configuration> parseConfigurations(const QString &text)
{
    return parsedList<ConfigurationJSON>(text, mappedConfiguration);
}

ConfigProperties parseConfigProperties(const QString &text)
{
    const JSONDocument document(text.toUtf8());
    return mappedProperties(ConfigPropertiesJSON::decoded(JSONObject(document.root())));
}

QList<ServiceAccount> parseServiceAccounts(const QString &text, const QString &project)
{
    return parsedList<ServiceAccountJSON>(text, [&project](ServiceAccountJSON &&record) {
        return ServiceAccount{ std::move(record.email), project, std::move(record.displayName) };
    });
}

} // namespace torvi::GCloudJSONParser
