// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/FavoritesStore.h"
#include "GCloudStateManager/Preferences.h"
#include "GCloudStateManager/RecentStore.h"
#include "GCloudStateManager/ServiceAccountStore.h"
#include "GCloudStateManager/SettingsStore.h"
#include "tests/fuzz/ScratchFile.h"

#include <cstdlib>

using namespace torvi;

/// Any file loads, with settings in their ranges, and a change to it is kept.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const ScratchFile file(QStringLiteral("preferences.ini"));
    file.write(data, size);
    {
        const auto preferences = std::make_shared<Preferences>(file.path());
        const SettingsStore settings(preferences);
        const RecentStore recents(preferences);
        const ServiceAccountStore accounts(preferences);
        FavoritesStore favorites(preferences);
        if (settings.refreshIntervalMinutes() < 1 || settings.refreshIntervalMinutes() > 60) {
            std::abort();
        }
        favorites.pin(QStringLiteral("pinned"));
    }
    if (!FavoritesStore(std::make_shared<Preferences>(file.path()))
             .isPinned(QStringLiteral("pinned"))) {
        std::abort();
    }
    return 0;
}
