// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/AuthStateManager.h"

#include "GCloudCLI/GCloudJSONParser.h"

#include <QPointer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

bool isServiceAccount(const QString &email)
{
    return email.endsWith(u".gserviceaccount.com");
}

/// The exception being handled, as the error to record.
AppError currentError()
{
    try {
        throw;
    } catch (const AppError &error) {
        return error;
    } catch (const std::exception &error) {
        return AppError::unknown(QString::fromUtf8(error.what()));
    }
}

template <typename Records, typename Predicate>
auto firstWhere(const Records &records, Predicate predicate)
    -> std::optional<typename Records::value_type>
{
    const auto found = std::ranges::find_if(records, predicate);
    return found == records.end() ? std::nullopt : std::optional(*found);
}

/// Holds the manager weakly: events that come after its end are awaited and dropped.
QCoro::Task<> reloadAtEachChange(std::shared_ptr<FileWatching> watcher,
                                 QPointer<AuthStateManager> manager, std::stop_token cancelled)
{
    ChangeStream changes = watcher->start();
    const std::stop_callback onCancel(cancelled, [changes]() mutable { changes.cancel(); });
    for (;;) {
        const bool changed = co_await changes.next();
        if (!changed) {
            co_return;
        }
        if (manager) {
            co_await manager->reloadFromFiles();
        }
    }
}

} // namespace

AuthStateManager::AuthStateManager(std::shared_ptr<GCloudExecutor> executor,
                                   std::shared_ptr<GCloudConfigReading> configReader,
                                   std::shared_ptr<FileWatching> fileWatcher,
                                   std::shared_ptr<FavoritesStoring> favoritesStore,
                                   std::shared_ptr<RecentStoring> recentStore,
                                   std::shared_ptr<ServiceAccountStoring> serviceAccountStore,
                                   std::shared_ptr<SettingsStoring> settingsStore,
                                   std::function<Clock::time_point()> now)
    : m_executor(std::move(executor))
    , m_configReader(std::move(configReader))
    , m_fileWatcher(std::move(fileWatcher))
    , m_favoritesStore(std::move(favoritesStore))
    , m_recentStore(std::move(recentStore))
    , m_serviceAccountStore(std::move(serviceAccountStore))
    , m_settingsStore(std::move(settingsStore))
    , m_now(std::move(now))
{
}

const AuthContext &AuthStateManager::currentContext() const
{
    return m_currentContext;
}

const QList<Project> &AuthStateManager::projects() const
{
    return m_projects;
}

const QList<Account> &AuthStateManager::accounts() const
{
    return m_accounts;
}

const QList<Configuration> &AuthStateManager::configurations() const
{
    return m_configurations;
}

bool AuthStateManager::isLoading() const
{
    return m_isLoading;
}

const std::optional<AppError> &AuthStateManager::lastError() const
{
    return m_lastError;
}

void AuthStateManager::setLastError(std::optional<AppError> error)
{
    assign(m_lastError, std::move(error), &AuthStateManager::lastErrorChanged);
}

const GCloudConfigReading &AuthStateManager::configReader() const
{
    return *m_configReader;
}

FavoritesStoring &AuthStateManager::favoritesStore() const
{
    return *m_favoritesStore;
}

RecentStoring &AuthStateManager::recentStore() const
{
    return *m_recentStore;
}

ServiceAccountStoring &AuthStateManager::serviceAccountStore() const
{
    return *m_serviceAccountStore;
}

SettingsStoring &AuthStateManager::settingsStore() const
{
    return *m_settingsStore;
}

QCoro::Task<> AuthStateManager::reload()
{
    const QPointer self(this);
    assign(m_isLoading, true, &AuthStateManager::isLoadingChanged);
    setLastError(std::nullopt);
    co_await reloadFromFiles();
    co_await loadProjects();
    if (self) {
        assign(m_isLoading, false, &AuthStateManager::isLoadingChanged);
    }
}

QCoro::Task<> AuthStateManager::reloadFromFiles()
{
    try {
        readFiles();
    } catch (...) {
        setLastError(currentError());
    }
    co_return;
}

void AuthStateManager::readFiles()
{
    const QString activeName = m_configReader->readActiveConfigName();
    const QStringList names = m_configReader->readAllConfigNames();
    const ConfigProperties active = m_configReader->readConfigProperties(activeName);
    ADCState adcState = m_configReader->readADCState();
    readConfigurations(names, activeName);
    readAccounts(active);
    assign(m_currentContext, contextFor(active, std::move(adcState)),
           &AuthStateManager::currentContextChanged);
}

void AuthStateManager::readConfigurations(const QStringList &names, const QString &activeName)
{
    QList<Configuration> configurations;
    configurations.reserve(names.size());
    for (const QString &name : names) {
        configurations.append(
            { name, name == activeName, m_configReader->readConfigProperties(name) });
    }
    assign(m_configurations, std::move(configurations), &AuthStateManager::configurationsChanged);
}

void AuthStateManager::readAccounts(const ConfigProperties &active)
{
    QList<Account> accounts;
    for (const QString &email : m_configReader->readAuthenticatedAccounts()) {
        accounts.append(
            { email, active.account == email,
              isServiceAccount(email) ? AccountType::serviceAccount : AccountType::user });
    }
    assign(m_accounts, std::move(accounts), &AuthStateManager::accountsChanged);
}

AuthContext AuthStateManager::contextFor(const ConfigProperties &active, ADCState adcState) const
{
    AuthContext context;
    if (active.project) {
        context.activeProject = projectOrItsId(*active.project);
    }
    context.activeAccount = firstWhere(m_accounts, &Account::isActive);
    context.activeConfiguration = firstWhere(m_configurations, &Configuration::isActive);
    if (active.impersonateServiceAccount) {
        context.impersonatedServiceAccount
            = ServiceAccount{ *active.impersonateServiceAccount, active.project.value_or(u""_s),
                              std::nullopt };
    }
    context.adcState = std::move(adcState);
    return context;
}

Project AuthStateManager::projectOrItsId(const QString &projectId) const
{
    const auto listed = firstWhere(
        m_projects, [&projectId](const Project &project) { return project.id == projectId; });
    return listed.value_or(Project{ projectId, projectId, std::nullopt, false, std::nullopt });
}

QCoro::Task<> AuthStateManager::forceRefreshProjects()
{
    m_projectCacheTime.reset();
    co_await loadProjects();
}

QCoro::Task<> AuthStateManager::loadProjects()
{
    if (m_projectCacheTime && m_now() - *m_projectCacheTime < projectCacheTTL) {
        co_return;
    }
    const QPointer self(this);
    try {
        const GCloudResult result = co_await runSuccessfully(GCloudCommand::listProjects());
        if (self) {
            adoptProjects(GCloudJSONParser::parseProjects(result.stdout));
        }
    } catch (...) {
        // A failed fetch behind a list that is shown already is silent: the old list stays usable.
        if (self && m_projects.isEmpty()) {
            setLastError(currentError());
        }
    }
}

void AuthStateManager::adoptProjects(QList<Project> projects)
{
    const QSet<QString> pinned = m_favoritesStore->allPinned();
    for (Project &project : projects) {
        project.isPinned = pinned.contains(project.id);
    }
    assign(m_projects, std::move(projects), &AuthStateManager::projectsChanged);
    m_projectCacheTime = m_now();
}

void AuthStateManager::startWatching()
{
    if (!m_fileWatcher) {
        return;
    }
    m_watchTask.emplace();
    QMetaObject::invokeMethod(
        this,
        [this, watcher = m_fileWatcher, cancelled = m_watchTask->get_token()] {
            reloadAtEachChange(watcher, this, cancelled);
        },
        Qt::QueuedConnection);
}

void AuthStateManager::stopWatching()
{
    if (m_watchTask) {
        m_watchTask->request_stop();
        m_watchTask.reset();
    }
    if (m_fileWatcher) {
        m_fileWatcher->stop();
    }
}

/// Throws what the executor throws, and commandFailed for a non-zero exit.
QCoro::Task<GCloudResult> AuthStateManager::runSuccessfully(GCloudCommand command)
{
    GCloudResult result = co_await m_executor->execute(std::move(command));
    if (!result.isSuccess()) {
        throw AppError::commandFailed(result.exitCode, result.stderr);
    }
    co_return result;
}

/// Whether the command ran and succeeded; its failure is recorded. Also false when the manager was
/// destroyed meanwhile, so that the caller ends without touching it.
QCoro::Task<bool> AuthStateManager::succeeds(GCloudCommand command)
{
    const QPointer self(this);
    try {
        co_await runSuccessfully(std::move(command));
        co_return !self.isNull();
    } catch (...) {
        if (self) {
            setLastError(currentError());
        }
        co_return false;
    }
}

} // namespace torvi
