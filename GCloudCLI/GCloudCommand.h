// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/HashFields.h"

#include <QString>

#include <optional>

namespace torvi {

/// One gcloud invocation. Everything that Torvi changes, and every query that needs gcloud itself,
/// is one of these; `GCloudCommands::arguments()` turns one into gcloud's argument list.
class GCloudCommand
{
public:
    enum class Case {
        setProject,
        setAccount,
        activateConfiguration,
        createConfiguration,
        deleteConfiguration,
        getConfigProperties,
        listServiceAccounts,
        setImpersonation,
        adcLoginWithImpersonation,
        setQuotaProject,
        listProjects,
        listAccounts,
        listConfigurations,
        clearImpersonation,
        revokeADC,
        applicationDefaultLogin,
        clearQuotaProject,
        printIdentityToken,
        version,
    };

    static GCloudCommand setProject(QString projectId);
    static GCloudCommand setAccount(QString account);
    static GCloudCommand activateConfiguration(QString name);
    static GCloudCommand createConfiguration(QString name);
    static GCloudCommand deleteConfiguration(QString name);
    /// Absent asks for the active configuration; an empty name is a name like any other.
    static GCloudCommand getConfigProperties(std::optional<QString> configuration);
    static GCloudCommand listServiceAccounts(QString project);
    static GCloudCommand setImpersonation(QString serviceAccount);
    static GCloudCommand adcLoginWithImpersonation(QString serviceAccount);
    static GCloudCommand setQuotaProject(QString projectId);
    static GCloudCommand listProjects();
    static GCloudCommand listAccounts();
    static GCloudCommand listConfigurations();
    static GCloudCommand clearImpersonation();
    static GCloudCommand revokeADC();
    static GCloudCommand applicationDefaultLogin();
    static GCloudCommand clearQuotaProject();
    static GCloudCommand printIdentityToken();
    static GCloudCommand version();

    [[nodiscard]] Case asCase() const
    {
        return m_case;
    }

    /// What the command acts on: a project, an account, a configuration or a service account.
    [[nodiscard]] const std::optional<QString> &payload() const
    {
        return m_payload;
    }

    /// Whether gcloud prints the address of a sign-in page and waits for the user to sign in.
    [[nodiscard]] bool requiresBrowser() const;

    bool operator==(const GCloudCommand &) const = default;

private:
    explicit GCloudCommand(Case command, std::optional<QString> payload = std::nullopt);

    Case m_case;
    std::optional<QString> m_payload;
};

[[nodiscard]] inline size_t qHash(const GCloudCommand &command, size_t seed = 0)
{
    return hashFields(seed, command.asCase(), command.payload());
}

} // namespace torvi
