// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/ADCState.h"
#include "GCloudModels/Account.h"
#include "GCloudModels/Configuration.h"
#include "GCloudModels/Project.h"
#include "GCloudModels/ServiceAccount.h"

namespace torvi {

/// Everything that is shown as current.
struct AuthContext
{
    std::optional<Project> activeProject;
    std::optional<Account> activeAccount;
    std::optional<Configuration> activeConfiguration;
    std::optional<ServiceAccount> impersonatedServiceAccount; ///< by the gcloud CLI
    ADCState adcState;

    /// Nothing active, no credentials: the state before anything was read. Built once.
    static const AuthContext &empty();

    bool operator==(const AuthContext &) const = default;
};

[[nodiscard]] inline size_t qHash(const AuthContext &context, size_t seed = 0)
{
    return hashFields(seed, context.activeProject, context.activeAccount,
                      context.activeConfiguration, context.impersonatedServiceAccount,
                      context.adcState);
}

} // namespace torvi
