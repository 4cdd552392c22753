// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/MenubarDisplayFormat.h"

using namespace Qt::StringLiterals;

namespace torvi {

QString label(MenubarDisplayFormat format)
{
    switch (format) {
    case MenubarDisplayFormat::iconOnly:
        return u"Icon only"_s;
    case MenubarDisplayFormat::iconAndProject:
        return u"Icon + Project"_s;
    case MenubarDisplayFormat::iconAndProjectAndAccount:
        return u"Icon + Project + Account"_s;
    }
    Q_UNREACHABLE();
}

} // namespace torvi
