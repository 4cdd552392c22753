// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/RawValue.h"

namespace torvi {

/// Kind of the Application Default Credentials file; the raw values are its "type" member.
enum class ADCType {
    userCredentials,
    serviceAccountKey,
    impersonatedServiceAccount,
    none,
};

template <>
inline constexpr std::array kRawValues<ADCType>{
    std::pair{ ADCType::userCredentials, QStringView{ u"authorized_user" } },
    std::pair{ ADCType::serviceAccountKey, QStringView{ u"service_account" } },
    std::pair{ ADCType::impersonatedServiceAccount,
               QStringView{ u"impersonated_service_account" } },
    std::pair{ ADCType::none, QStringView{ u"none" } },
};

} // namespace torvi
