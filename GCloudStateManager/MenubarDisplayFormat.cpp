// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/MenubarDisplayFormat.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace torvi {

QString label(MenubarDisplayFormat format)
{
    switch (format) {
    case MenubarDisplayFormat::iconOnly:
        return QCoreApplication::translate("MenubarDisplayFormat", "Icon only");
    case MenubarDisplayFormat::iconAndProject:
        return QCoreApplication::translate("MenubarDisplayFormat", "Icon + Project");
    case MenubarDisplayFormat::iconAndProjectAndAccount:
        return QCoreApplication::translate("MenubarDisplayFormat", "Icon + Project + Account");
    }
    Q_UNREACHABLE();
}

} // namespace torvi
