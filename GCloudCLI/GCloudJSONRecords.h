// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

/// What gcloud prints, record by record, as far as Torvi looks at it. The members bear gcloud's own
/// key names; only GCloudJSONParser sees them. A member that is not optional must be there.
///
/// Each decoded() throws std::runtime_error, whose text says what is wrong and where.
namespace torvi {

class JSONObject;

// NOLINTBEGIN(readability-identifier-naming): gcloud's names

/// An element of `gcloud projects list`.
struct ProjectJSON
{
    QString projectId;
    QString name;
    std::optional<QString> projectNumber;

    [[nodiscard]] static ProjectJSON decoded(const JSONObject &object);
};

/// An element of `gcloud auth list`.
struct AccountJSON
{
    QString account;
    QString status;
    std::optional<QString> account_type;

    [[nodiscard]] static AccountJSON decoded(const JSONObject &object);
};

struct CorePropsJSON
{
    std::optional<QString> project;
    std::optional<QString> account;

    [[nodiscard]] static CorePropsJSON decoded(const JSONObject &object);
};

struct ConfigurationPropertiesJSON
{
    std::optional<CorePropsJSON> core;

    [[nodiscard]] static ConfigurationPropertiesJSON decoded(const JSONObject &object);
};

/// An element of `gcloud config configurations list`.
struct ConfigurationJSON
{
    QString name;
    bool is_active = false;
    std::optional<ConfigurationPropertiesJSON> properties;

    [[nodiscard]] static ConfigurationJSON decoded(const JSONObject &object);
};

struct ConfigCoreJSON
{
    std::optional<QString> project;
    std::optional<QString> account;

    [[nodiscard]] static ConfigCoreJSON decoded(const JSONObject &object);
};

struct ConfigComputeJSON
{
    std::optional<QString> region;
    std::optional<QString> zone;

    [[nodiscard]] static ConfigComputeJSON decoded(const JSONObject &object);
};

struct ConfigAuthJSON
{
    std::optional<QString> impersonate_service_account;

    [[nodiscard]] static ConfigAuthJSON decoded(const JSONObject &object);
};

/// The whole of `gcloud config list`.
struct ConfigPropertiesJSON
{
    std::optional<ConfigCoreJSON> core;
    std::optional<ConfigComputeJSON> compute;
    std::optional<ConfigAuthJSON> auth;

    [[nodiscard]] static ConfigPropertiesJSON decoded(const JSONObject &object);
};

/// An element of `gcloud iam service-accounts list`.
struct ServiceAccountJSON
{
    QString email;
    std::optional<QString> displayName;

    [[nodiscard]] static ServiceAccountJSON decoded(const JSONObject &object);
};

// NOLINTEND(readability-identifier-naming)

} // namespace torvi
