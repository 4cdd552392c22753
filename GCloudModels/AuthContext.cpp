// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudModels/AuthContext.h"

namespace torvi {

const AuthContext &AuthContext::empty()
{
    static const AuthContext context;
    return context;
}

} // namespace torvi
