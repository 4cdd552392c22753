// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "benchmarks/desktop/SampleState.h"

#include "GCloudCLI/GCloudConfigReader.h"
#include "GCloudStateManager/FavoritesStore.h"
#include "GCloudStateManager/Preferences.h"
#include "GCloudStateManager/RecentStore.h"
#include "GCloudStateManager/ServiceAccountStore.h"
#include "GCloudStateManager/SettingsStore.h"
#include "benchmarks/SampleDirectory.h"
#include "benchmarks/desktop/ListedProjects.h"

namespace torvi {

SampleState::SampleState(int projectCount)
{
    makeSampleDirectory(m_directory.path(), 5, 5);
    const auto preferences = std::make_shared<Preferences>();
    m_manager = std::make_unique<AuthStateManager>(
        std::make_shared<ListedProjects>(QString::fromUtf8(sampleProjects(projectCount))),
        std::make_shared<GCloudConfigReader>(m_directory.path()), nullptr,
        std::make_shared<FavoritesStore>(preferences), std::make_shared<RecentStore>(preferences),
        std::make_shared<ServiceAccountStore>(preferences),
        std::make_shared<SettingsStore>(preferences));
    m_manager->reload();
    if (m_manager->projects().size() != projectCount) {
        qFatal("the projects were not listed");
    }
}

AuthStateManager &SampleState::manager() const
{
    return *m_manager;
}

} // namespace torvi
