// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "torvictl/StandardErrorAuthHandler.h"

#include "torvictl/Terminal.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace torvi {

void StandardErrorAuthHandler::openAuthURL(const QString &url)
{
    Terminal::printError(
        QCoreApplication::translate("StandardErrorAuthHandler", "Sign in with your browser at:\n%1")
            .arg(url));
}

} // namespace torvi
