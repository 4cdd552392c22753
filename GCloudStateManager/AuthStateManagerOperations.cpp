// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

// What the user does: each operation is one of four patterns over the state in
// AuthStateManager.cpp.

#include "GCloudCLI/GCloudJSONParser.h"
#include "GCloudStateManager/AuthStateManager.h"

#include <algorithm>
#include <utility>

namespace torvi {

QCoro::Task<> AuthStateManager::runAndReload(GCloudCommand command)
{
    const bool succeeded = co_await succeeds(std::move(command));
    if (succeeded) {
        co_await reloadFromFiles();
    }
}

QCoro::Task<> AuthStateManager::switchProject(QString projectId)
{
    return runAndReload(GCloudCommand::setProject(std::move(projectId)));
}

QCoro::Task<> AuthStateManager::switchAccount(QString account)
{
    const bool succeeded = co_await succeeds(GCloudCommand::setAccount(std::move(account)));
    if (succeeded) {
        co_await reloadFromFiles();
        co_await forceRefreshProjects(); // which projects are visible depends on the account
    }
}

QCoro::Task<> AuthStateManager::activateConfiguration(QString name)
{
    return runAndReload(GCloudCommand::activateConfiguration(std::move(name)));
}

QCoro::Task<> AuthStateManager::createConfiguration(QString name)
{
    return runAndReload(GCloudCommand::createConfiguration(std::move(name)));
}

QCoro::Task<> AuthStateManager::deleteConfiguration(QString name)
{
    return runAndReload(GCloudCommand::deleteConfiguration(std::move(name)));
}

QCoro::Task<> AuthStateManager::setQuotaProject(QString projectId)
{
    return runAndReload(GCloudCommand::setQuotaProject(std::move(projectId)));
}

QCoro::Task<> AuthStateManager::triggerADCLogin()
{
    return runAndReload(GCloudCommand::applicationDefaultLogin());
}

QCoro::Task<> AuthStateManager::setImpersonation(QString serviceAccount, ImpersonationMode mode)
{
    return runStepsAndReload(mode, GCloudCommand::setImpersonation(serviceAccount),
                             GCloudCommand::adcLoginWithImpersonation(serviceAccount));
}

QCoro::Task<> AuthStateManager::clearImpersonation(ImpersonationMode mode)
{
    return runStepsAndReload(mode, GCloudCommand::clearImpersonation(), GCloudCommand::revokeADC());
}

QCoro::Task<> AuthStateManager::runStepsAndReload(ImpersonationMode mode, GCloudCommand cliStep,
                                                  GCloudCommand adcStep)
{
    bool succeeded = true;
    if (mode != ImpersonationMode::adcOnly) {
        succeeded = co_await succeeds(std::move(cliStep));
    }
    if (succeeded && mode != ImpersonationMode::cliOnly) {
        succeeded = co_await succeeds(std::move(adcStep));
    }
    if (succeeded) {
        co_await reloadFromFiles();
    }
}

QCoro::Task<QString> AuthStateManager::fetchIdentityToken()
{
    const GCloudResult result = co_await runSuccessfully(GCloudCommand::printIdentityToken());
    co_return result.stdout.trimmed();
}

QCoro::Task<QList<ServiceAccount>> AuthStateManager::fetchServiceAccounts(QString forProject)
{
    try {
        const GCloudResult result
            = co_await runSuccessfully(GCloudCommand::listServiceAccounts(forProject));
        co_return GCloudJSONParser::parseServiceAccounts(result.stdout, forProject);
    } catch (...) {
        co_return QList<ServiceAccount>(); // an empty list is the whole failure report
    }
}

void AuthStateManager::togglePin(const QString &projectId)
{
    if (m_favoritesStore->isPinned(projectId)) {
        m_favoritesStore->unpin(projectId);
    } else {
        m_favoritesStore->pin(projectId);
    }
    QList<Project> projects = m_projects;
    const auto listed = std::ranges::find(projects, projectId, &Project::id);
    if (listed != projects.end()) {
        listed->isPinned = m_favoritesStore->isPinned(projectId);
        assign(m_projects, std::move(projects), &AuthStateManager::projectsChanged);
    }
}

} // namespace torvi
