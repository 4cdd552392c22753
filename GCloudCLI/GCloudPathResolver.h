// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/GCloudPathResolving.h"
#include "GCloudCLI/SearchPlaces.h"

#include <optional>

namespace torvi {

/// Finds gcloud by a fixed search from cheap to expensive: the user's own setting, well-known
/// locations, the start-up files of shells, and at last the login shell itself. A desktop program
/// does not inherit the search path that the user's shell sets up.
///
/// There is no cache: a gcloud that has just been installed is found at the next search.
/// What cannot be read, started or executed on the way is passed over silently.
class GCloudPathResolver final : public GCloudPathResolving
{
public:
    /// From cheap to expensive.
    enum class Stage {
        setting,
        wellKnownLocation,
        startUpFile,
        loginShell,
    };

    struct Found
    {
        QString path;
        Stage stage;
    };

    /// `customPath` is taken as it stands when it is executable, without expansion of "~".
    explicit GCloudPathResolver(std::optional<QString> customPath,
                                SearchPlaces places = SearchPlaces::ofThisUser());

    [[nodiscard]] QString resolve(std::stop_token stop = {}) const override;
    /// resolve() that also tells by which stage, and yields nothing in place of its error.
    [[nodiscard]] std::optional<Found> find(const std::stop_token &stop = {}) const;

private:
    [[nodiscard]] std::optional<QString> fromSetting() const;
    [[nodiscard]] std::optional<QString> fromWellKnownLocations() const;
    [[nodiscard]] std::optional<QString> fromStartUpFiles() const;
    [[nodiscard]] std::optional<QString> fromLoginShell(const std::stop_token &stop) const;

    std::optional<QString> m_customPath;
    SearchPlaces m_places;
};

} // namespace torvi
