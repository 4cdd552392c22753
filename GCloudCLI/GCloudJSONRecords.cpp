// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudJSONRecords.h"

#include "GCloudCLI/JSONObject.h"

namespace torvi {

namespace {

template <typename Record>
std::optional<Record> optionalRecord(const JSONMember &member)
{
    const std::optional<JSONObject> object = member.optionalObject();
    return object ? std::optional(Record::decoded(*object)) : std::nullopt;
}

} // namespace

ProjectJSON ProjectJSON::decoded(const JSONObject &object)
{
    const auto [projectId, name, projectNumber]
        = object.members("projectId", "name", "projectNumber");
    return { projectId.string(), name.string(), projectNumber.optionalString() };
}

AccountJSON AccountJSON::decoded(const JSONObject &object)
{
    const auto [account, status, accountType] = object.members("account", "status", "account_type");
    return { account.string(), status.string(), accountType.optionalString() };
}

CorePropsJSON CorePropsJSON::decoded(const JSONObject &object)
{
    const auto [project, account] = object.members("project", "account");
    return { project.optionalString(), account.optionalString() };
}

ConfigurationPropertiesJSON ConfigurationPropertiesJSON::decoded(const JSONObject &object)
{
    const auto [core] = object.members("core");
    return { optionalRecord<CorePropsJSON>(core) };
}

ConfigurationJSON ConfigurationJSON::decoded(const JSONObject &object)
{
    const auto [name, isActive, properties] = object.members("name", "is_active", "properties");
    return { name.string(), isActive.boolean(),
             optionalRecord<ConfigurationPropertiesJSON>(properties) };
}

ConfigCoreJSON ConfigCoreJSON::decoded(const JSONObject &object)
{
    const auto [project, account] = object.members("project", "account");
    return { project.optionalString(), account.optionalString() };
}

ConfigComputeJSON ConfigComputeJSON::decoded(const JSONObject &object)
{
    const auto [region, zone] = object.members("region", "zone");
    return { region.optionalString(), zone.optionalString() };
}

ConfigAuthJSON ConfigAuthJSON::decoded(const JSONObject &object)
{
    const auto [impersonateServiceAccount] = object.members("impersonate_service_account");
    return { impersonateServiceAccount.optionalString() };
}

ConfigPropertiesJSON ConfigPropertiesJSON::decoded(const JSONObject &object)
{
    const auto [core, compute, auth] = object.members("core", "compute", "auth");
    return { optionalRecord<ConfigCoreJSON>(core), optionalRecord<ConfigComputeJSON>(compute),
             optionalRecord<ConfigAuthJSON>(auth) };
}

ServiceAccountJSON ServiceAccountJSON::decoded(const JSONObject &object)
{
    const auto [email, displayName] = object.members("email", "displayName");
    return { email.string(), displayName.optionalString() };
}

} // namespace torvi
