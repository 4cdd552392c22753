// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/RawValue.h"

namespace torvi {

/// What the status item shows beside its icon; the raw values are what is stored.
enum class MenubarDisplayFormat {
    iconOnly,
    iconAndProject,
    iconAndProjectAndAccount,
};

template <>
inline constexpr std::array kRawValues<MenubarDisplayFormat>{
    std::pair{ MenubarDisplayFormat::iconOnly, QStringView{ u"icon_only" } },
    std::pair{ MenubarDisplayFormat::iconAndProject, QStringView{ u"icon_and_project" } },
    std::pair{ MenubarDisplayFormat::iconAndProjectAndAccount,
               QStringView{ u"icon_and_project_and_account" } },
};

/// The text that the settings show for `format`.
[[nodiscard]] QString label(MenubarDisplayFormat format);

} // namespace torvi
