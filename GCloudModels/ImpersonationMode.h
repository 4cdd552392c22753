// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/RawValue.h"

namespace torvi {

/// Where a chosen service account is impersonated; the raw values are also what pickers show.
enum class ImpersonationMode {
    adcOnly,
    cliOnly,
    both,
};

template <>
inline constexpr std::array kRawValues<ImpersonationMode>{
    std::pair{ ImpersonationMode::adcOnly, QStringView{ u"ADC Only" } },
    std::pair{ ImpersonationMode::cliOnly, QStringView{ u"CLI Only" } },
    std::pair{ ImpersonationMode::both, QStringView{ u"Both" } },
};

} // namespace torvi
