// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/ADCWords.h"

#include <QCoreApplication>

namespace torvi {

QString ADCWords::summary(ADCType type)
{
    switch (type) {
    case ADCType::userCredentials:
        return QCoreApplication::translate("ADCStatus", "User credentials");
    case ADCType::serviceAccountKey:
        return QCoreApplication::translate("ADCStatus", "Service account key");
    case ADCType::impersonatedServiceAccount:
        return QCoreApplication::translate("ADCStatus", "Impersonated SA");
    case ADCType::none:
        return QCoreApplication::translate("ADCStatus", "Not configured");
    }
    Q_UNREACHABLE();
}

} // namespace torvi
