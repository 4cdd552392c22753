// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/ADCWords.h"

using namespace Qt::StringLiterals;

namespace torvi {

QString ADCWords::summary(ADCType type)
{
    switch (type) {
    case ADCType::userCredentials:
        return u"User credentials"_s;
    case ADCType::serviceAccountKey:
        return u"Service account key"_s;
    case ADCType::impersonatedServiceAccount:
        return u"Impersonated SA"_s;
    case ADCType::none:
        return u"Not configured"_s;
    }
    Q_UNREACHABLE();
}

} // namespace torvi
