// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/ActivationToken.h"

#include <utility>

namespace torvi {

namespace {

/// Where Qt, like every toolkit, takes it from.
constexpr const char *kVariable = "XDG_ACTIVATION_TOKEN";

QString &keptToken()
{
    static QString token;
    return token;
}

} // namespace

void ActivationToken::keep(const QString &token)
{
    keptToken() = token;
}

void ActivationToken::use(const std::function<void()> &bringToFront)
{
    const QString token = std::exchange(keptToken(), {});
    if (token.isEmpty()) {
        bringToFront();
        return;
    }
    qputenv(kVariable, token.toUtf8());
    bringToFront();
    qunsetenv(kVariable); // children would take it for their own
}

} // namespace torvi
