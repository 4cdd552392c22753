// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/DependencyContainer.h"

#include "GCloudCLI/GCloudConfigReader.h"
#include "GCloudCLI/GCloudPathResolver.h"
#include "GCloudCLI/ProcessExecutor.h"
#include "GCloudStateManager/FavoritesStore.h"
#include "GCloudStateManager/FileWatcher.h"
#include "GCloudStateManager/Preferences.h"
#include "GCloudStateManager/RecentStore.h"
#include "GCloudStateManager/ServiceAccountStore.h"
#include "GCloudStateManager/SettingsStore.h"

#include <utility>

using namespace std::chrono_literals;

namespace torvi {

DependencyContainer::DependencyContainer(std::shared_ptr<BrowserAuthHandler> browserAuthHandler)
{
    const auto preferences = std::make_shared<Preferences>();
    m_settingsStore = std::make_shared<SettingsStore>(preferences);
    m_pathResolver = std::make_shared<GCloudPathResolver>(m_settingsStore->gcloudPathOverride());
    auto executor
        = std::make_shared<ProcessExecutor>(m_pathResolver, std::move(browserAuthHandler));
    auto configReader = std::make_shared<GCloudConfigReader>();
    m_fileWatcher
        = std::make_shared<FileWatcher>(QStringList{ configReader->configDirectory() }, 300ms);
    m_stateManager = std::make_unique<AuthStateManager>(
        std::move(executor), std::move(configReader), m_fileWatcher,
        std::make_shared<FavoritesStore>(preferences), std::make_shared<RecentStore>(preferences),
        std::make_shared<ServiceAccountStore>(preferences), m_settingsStore);
}

DependencyContainer::DependencyContainer(std::shared_ptr<SettingsStoring> settingsStore,
                                         std::shared_ptr<const GCloudPathResolving> pathResolver,
                                         std::shared_ptr<FileWatching> fileWatcher,
                                         std::unique_ptr<AuthStateManager> stateManager)
    : m_settingsStore(std::move(settingsStore))
    , m_pathResolver(std::move(pathResolver))
    , m_fileWatcher(std::move(fileWatcher))
    , m_stateManager(std::move(stateManager))
{
}

DependencyContainer::~DependencyContainer() = default;

AuthStateManager &DependencyContainer::stateManager() const
{
    return *m_stateManager;
}

SettingsStoring &DependencyContainer::settingsStore() const
{
    return *m_settingsStore;
}

FileWatching &DependencyContainer::fileWatcher() const
{
    return *m_fileWatcher;
}

std::shared_ptr<const GCloudPathResolving> DependencyContainer::pathResolver() const
{
    return m_pathResolver;
}

void DependencyContainer::start()
{
    m_stateManager->startWatching();
    QMetaObject::invokeMethod(
        m_stateManager.get(), [manager = m_stateManager.get()] { manager->reload(); },
        Qt::QueuedConnection);
}

void DependencyContainer::stop()
{
    m_stateManager->stopWatching();
}

} // namespace torvi
