// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "torvictl/StandardErrorAuthHandler.h"

#include "torvictl/Terminal.h"

using namespace Qt::StringLiterals;

namespace torvi {

void StandardErrorAuthHandler::openAuthURL(const QString &url)
{
    Terminal::printError(u"Sign in with your browser at:\n"_s + url);
}

} // namespace torvi
