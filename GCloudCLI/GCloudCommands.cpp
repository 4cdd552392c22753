// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudCommands.h"

using namespace Qt::StringLiterals;

namespace torvi {

QStringList GCloudCommands::arguments(const GCloudCommand &command)
{
    const QString payload = command.payload().value_or(QString());
    switch (command.asCase()) {
    case GCloudCommand::Case::setProject:
        return { u"config"_s, u"set"_s, u"project"_s, payload };
    case GCloudCommand::Case::setAccount:
        return { u"config"_s, u"set"_s, u"account"_s, payload };
    case GCloudCommand::Case::activateConfiguration:
        return { u"config"_s, u"configurations"_s, u"activate"_s, payload };
    case GCloudCommand::Case::createConfiguration:
        return { u"config"_s, u"configurations"_s, u"create"_s, payload };
    case GCloudCommand::Case::deleteConfiguration:
        return { u"config"_s, u"configurations"_s, u"delete"_s, payload, u"--quiet"_s };
    case GCloudCommand::Case::getConfigProperties:
        if (!command.payload()) {
            return { u"config"_s, u"list"_s, u"--format=json"_s };
        }
        return { u"config"_s, u"list"_s, u"--configuration="_s + payload, u"--format=json"_s };
    case GCloudCommand::Case::listServiceAccounts:
        return { u"iam"_s, u"service-accounts"_s, u"list"_s, u"--project="_s + payload,
                 u"--format=json"_s };
    case GCloudCommand::Case::setImpersonation:
        return { u"config"_s, u"set"_s, u"auth/impersonate_service_account"_s, payload };
    case GCloudCommand::Case::adcLoginWithImpersonation:
        return { u"auth"_s, u"application-default"_s, u"login"_s,
                 u"--impersonate-service-account="_s + payload, u"--quiet"_s };
    case GCloudCommand::Case::setQuotaProject:
        return { u"auth"_s, u"application-default"_s, u"set-quota-project"_s, payload };
    case GCloudCommand::Case::listProjects:
        return { u"projects"_s, u"list"_s, u"--format=json"_s, u"--sort-by=projectId"_s };
    case GCloudCommand::Case::listAccounts:
        return { u"auth"_s, u"list"_s, u"--format=json"_s };
    case GCloudCommand::Case::listConfigurations:
        return { u"config"_s, u"configurations"_s, u"list"_s, u"--format=json"_s };
    case GCloudCommand::Case::clearImpersonation:
        return { u"config"_s, u"unset"_s, u"auth/impersonate_service_account"_s };
    case GCloudCommand::Case::revokeADC:
        return { u"auth"_s, u"application-default"_s, u"revoke"_s, u"--quiet"_s };
    case GCloudCommand::Case::applicationDefaultLogin:
        return { u"auth"_s, u"application-default"_s, u"login"_s, u"--quiet"_s };
    case GCloudCommand::Case::clearQuotaProject:
        // The empty argument is a real one: it is how the quota project is cleared.
        return { u"auth"_s, u"application-default"_s, u"set-quota-project"_s, QString() };
    case GCloudCommand::Case::printIdentityToken:
        return { u"auth"_s, u"print-identity-token"_s };
    case GCloudCommand::Case::version:
        return { u"version"_s, u"--format=json"_s };
    }
    Q_UNREACHABLE();
}

} // namespace torvi
