// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/RawValue.h"

namespace torvi {

enum class AccountType {
    user,
    serviceAccount,
};

template <>
inline constexpr std::array kRawValues<AccountType>{
    std::pair{ AccountType::user, QStringView{ u"USER" } },
    std::pair{ AccountType::serviceAccount, QStringView{ u"SERVICE_ACCOUNT" } },
};

} // namespace torvi
