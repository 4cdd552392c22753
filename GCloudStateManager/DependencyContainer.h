// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/BrowserAuthHandler.h"
#include "GCloudCLI/GCloudPathResolving.h"
#include "GCloudStateManager/AuthStateManager.h"

#include <memory>

namespace torvi {

/// The one place where every logic component is constructed and wired; both front ends build it.
///
/// Construction reads the stored preferences, but no gcloud file, and runs nothing. The gcloud path
/// setting is taken as it is at this moment. Main thread only.
/// Lifetime: destroying the container ends the gcloud processes that still run.
class DependencyContainer final
{
public:
    /// `browserAuthHandler` is told the address of each browser sign-in.
    explicit DependencyContainer(std::shared_ptr<BrowserAuthHandler> browserAuthHandler);
    /// A graph of parts that are there already, for tests.
    DependencyContainer(std::shared_ptr<SettingsStoring> settingsStore,
                        std::shared_ptr<const GCloudPathResolving> pathResolver,
                        std::shared_ptr<FileWatching> fileWatcher,
                        std::unique_ptr<AuthStateManager> stateManager);
    ~DependencyContainer();
    Q_DISABLE_COPY_MOVE(DependencyContainer)

    [[nodiscard]] AuthStateManager &stateManager() const;
    [[nodiscard]] SettingsStoring &settingsStore() const;
    [[nodiscard]] FileWatching &fileWatcher() const;
    /// What the executor finds gcloud with; blocks, see there.
    [[nodiscard]] std::shared_ptr<const GCloudPathResolving> pathResolver() const;

    /// Starts watching, and a first reload() from the event loop.
    void start();
    void stop();

private:
    std::shared_ptr<SettingsStoring> m_settingsStore;
    std::shared_ptr<const GCloudPathResolving> m_pathResolver;
    std::shared_ptr<FileWatching> m_fileWatcher;
    std::unique_ptr<AuthStateManager> m_stateManager;
};

} // namespace torvi
