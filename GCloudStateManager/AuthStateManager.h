// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/GCloudConfigReading.h"
#include "GCloudCLI/GCloudExecutor.h"
#include "GCloudModels/AppError.h"
#include "GCloudModels/AuthContext.h"
#include "GCloudModels/ImpersonationMode.h"
#include "GCloudStateManager/FavoritesStoring.h"
#include "GCloudStateManager/FileWatching.h"
#include "GCloudStateManager/RecentStoring.h"
#include "GCloudStateManager/ServiceAccountStoring.h"
#include "GCloudStateManager/SettingsStoring.h"

#include <QList>
#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <utility>

namespace torvi {

/// The one observable object that holds what the user sees, and the operations that change it.
///
/// Thread: everything on the main thread. An operation suspends only while gcloud runs; overlapping
/// operations are not serialised, the last assignment wins. A change signal is emitted only when
/// the value differs.
/// Errors: an operation that changes something never throws, it leaves its failure in lastError();
/// only reload() and setLastError() clear that.
/// Lifetime: an operation that is under way when the manager is destroyed ends without effect.
class AuthStateManager final : public QObject
{
    Q_OBJECT

public:
    using Clock = std::chrono::system_clock;

    /// How long a fetched project list is used before it is fetched again.
    static constexpr std::chrono::seconds projectCacheTTL{ 300 };

    /// Reads and starts nothing. `fileWatcher` may be null; `now` is replaced in tests.
    AuthStateManager(std::shared_ptr<GCloudExecutor> executor,
                     std::shared_ptr<GCloudConfigReading> configReader,
                     std::shared_ptr<FileWatching> fileWatcher,
                     std::shared_ptr<FavoritesStoring> favoritesStore,
                     std::shared_ptr<RecentStoring> recentStore,
                     std::shared_ptr<ServiceAccountStoring> serviceAccountStore,
                     std::shared_ptr<SettingsStoring> settingsStore,
                     std::function<Clock::time_point()> now = &Clock::now);

    [[nodiscard]] const AuthContext &currentContext() const;
    /// As gcloud listed them for the active account, with `isPinned` filled in.
    [[nodiscard]] const QList<Project> &projects() const;
    [[nodiscard]] const QList<Account> &accounts() const;
    [[nodiscard]] const QList<Configuration> &configurations() const;
    /// True while reload() runs.
    [[nodiscard]] bool isLoading() const;
    [[nodiscard]] const std::optional<AppError> &lastError() const;
    void setLastError(std::optional<AppError> error);

    [[nodiscard]] const GCloudConfigReading &configReader() const;
    [[nodiscard]] FavoritesStoring &favoritesStore() const;
    [[nodiscard]] RecentStoring &recentStore() const;
    [[nodiscard]] ServiceAccountStoring &serviceAccountStore() const;
    [[nodiscard]] SettingsStoring &settingsStore() const;

    /// Clears lastError(), re-reads the files and then fetches the projects unless they are fresh.
    QCoro::Task<> reload();
    /// Re-reads gcloud's files; runs no gcloud. What stands before the first failing read is kept.
    QCoro::Task<> reloadFromFiles();
    /// Fetches the projects whatever their age.
    QCoro::Task<> forceRefreshProjects();

    /// Re-reads the files at each event of the file watcher, from the next turn of the event loop
    /// on. Called once.
    void startWatching();
    void stopWatching();

    QCoro::Task<> switchProject(QString projectId);
    QCoro::Task<> switchAccount(QString account);
    QCoro::Task<> activateConfiguration(QString name);
    QCoro::Task<> createConfiguration(QString name);
    QCoro::Task<> deleteConfiguration(QString name);
    QCoro::Task<> setQuotaProject(QString projectId);
    /// Runs until the user has signed in with the browser.
    QCoro::Task<> triggerADCLogin();
    /// The CLI step comes first; when it fails the ADC step, a browser sign-in, is not started.
    QCoro::Task<> setImpersonation(QString serviceAccount, ImpersonationMode mode);
    /// Clearing the ADC step revokes the application default credentials as a whole.
    QCoro::Task<> clearImpersonation(ImpersonationMode mode);

    /// The token without surrounding white space; neither kept nor copied.
    /// Errors: throws AppError; lastError() is not touched.
    QCoro::Task<QString> fetchIdentityToken();
    /// Empty on any failure; lastError() is not touched.
    QCoro::Task<QList<ServiceAccount>> fetchServiceAccounts(QString forProject);

    /// Pins or unpins; also an id that is not listed.
    void togglePin(const QString &projectId);

Q_SIGNALS:
    void currentContextChanged();
    void projectsChanged();
    void accountsChanged();
    void configurationsChanged();
    void isLoadingChanged();
    void lastErrorChanged();

private:
    template <typename Value>
    void assign(Value &member, Value value, void (AuthStateManager::*changed)())
    {
        if (member != value) {
            member = std::move(value);
            Q_EMIT(this->*changed)();
        }
    }

    void readFiles();
    void readConfigurations(const QStringList &names, const QString &activeName);
    void readAccounts(const ConfigProperties &active);
    [[nodiscard]] AuthContext contextFor(const ConfigProperties &active, ADCState adcState) const;
    [[nodiscard]] Project projectOrItsId(const QString &projectId) const;

    QCoro::Task<> loadProjects();
    void adoptProjects(QList<Project> projects);
    QCoro::Task<GCloudResult> runSuccessfully(GCloudCommand command);
    QCoro::Task<bool> succeeds(GCloudCommand command);
    QCoro::Task<> runAndReload(GCloudCommand command);
    QCoro::Task<> runStepsAndReload(ImpersonationMode mode, GCloudCommand cliStep,
                                    GCloudCommand adcStep);

    AuthContext m_currentContext = AuthContext::empty();
    QList<Project> m_projects;
    QList<Account> m_accounts;
    QList<Configuration> m_configurations;
    bool m_isLoading = false;
    std::optional<AppError> m_lastError;

    std::shared_ptr<GCloudExecutor> m_executor;
    std::shared_ptr<GCloudConfigReading> m_configReader;
    std::shared_ptr<FileWatching> m_fileWatcher;
    std::shared_ptr<FavoritesStoring> m_favoritesStore;
    std::shared_ptr<RecentStoring> m_recentStore;
    std::shared_ptr<ServiceAccountStoring> m_serviceAccountStore;
    std::shared_ptr<SettingsStoring> m_settingsStore;
    std::function<Clock::time_point()> m_now;
    std::optional<std::stop_source> m_watchTask;
    std::optional<Clock::time_point> m_projectCacheTime;
};

} // namespace torvi
