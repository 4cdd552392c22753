// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudCommand.h"

#include <utility>

namespace torvi {

GCloudCommand::GCloudCommand(Case command, std::optional<QString> payload)
    : m_case(command)
    , m_payload(std::move(payload))
{
}

GCloudCommand GCloudCommand::setProject(QString projectId)
{
    return GCloudCommand(Case::setProject, std::move(projectId));
}

GCloudCommand GCloudCommand::setAccount(QString account)
{
    return GCloudCommand(Case::setAccount, std::move(account));
}

GCloudCommand GCloudCommand::activateConfiguration(QString name)
{
    return GCloudCommand(Case::activateConfiguration, std::move(name));
}

GCloudCommand GCloudCommand::createConfiguration(QString name)
{
    return GCloudCommand(Case::createConfiguration, std::move(name));
}

GCloudCommand GCloudCommand::deleteConfiguration(QString name)
{
    return GCloudCommand(Case::deleteConfiguration, std::move(name));
}

GCloudCommand GCloudCommand::getConfigProperties(std::optional<QString> configuration)
{
    return GCloudCommand(Case::getConfigProperties, std::move(configuration));
}

GCloudCommand GCloudCommand::listServiceAccounts(QString project)
{
    return GCloudCommand(Case::listServiceAccounts, std::move(project));
}

GCloudCommand GCloudCommand::setImpersonation(QString serviceAccount)
{
    return GCloudCommand(Case::setImpersonation, std::move(serviceAccount));
}

GCloudCommand GCloudCommand::adcLoginWithImpersonation(QString serviceAccount)
{
    return GCloudCommand(Case::adcLoginWithImpersonation, std::move(serviceAccount));
}

GCloudCommand GCloudCommand::setQuotaProject(QString projectId)
{
    return GCloudCommand(Case::setQuotaProject, std::move(projectId));
}

GCloudCommand GCloudCommand::listProjects()
{
    return GCloudCommand(Case::listProjects);
}

GCloudCommand GCloudCommand::listAccounts()
{
    return GCloudCommand(Case::listAccounts);
}

GCloudCommand GCloudCommand::listConfigurations()
{
    return GCloudCommand(Case::listConfigurations);
}

GCloudCommand GCloudCommand::clearImpersonation()
{
    return GCloudCommand(Case::clearImpersonation);
}

GCloudCommand GCloudCommand::revokeADC()
{
    return GCloudCommand(Case::revokeADC);
}

GCloudCommand GCloudCommand::applicationDefaultLogin()
{
    return GCloudCommand(Case::applicationDefaultLogin);
}

GCloudCommand GCloudCommand::clearQuotaProject()
{
    return GCloudCommand(Case::clearQuotaProject);
}

GCloudCommand GCloudCommand::printIdentityToken()
{
    return GCloudCommand(Case::printIdentityToken);
}

GCloudCommand GCloudCommand::version()
{
    return GCloudCommand(Case::version);
}

bool GCloudCommand::requiresBrowser() const
{
    return m_case == Case::applicationDefaultLogin || m_case == Case::adcLoginWithImpersonation;
}

} // namespace torvi
