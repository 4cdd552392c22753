// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/BrowserAuthHandler.h"

namespace torvi {

/// Shows the address of a browser sign-in on standard error, for a terminal without a browser.
class StandardErrorAuthHandler final : public BrowserAuthHandler
{
public:
    void openAuthURL(const QString &url) override;
};

} // namespace torvi
