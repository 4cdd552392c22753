// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/ADCStatus.h"

#include "GCloudStateManager/ADCWords.h"

#include <QCoreApplication>

#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

ADCStatus::ADCStatus(ADCState state)
    : m_state(std::move(state))
{
}

bool ADCStatus::isConfigured() const
{
    return m_state.type != ADCType::none;
}

QString ADCStatus::summary() const
{
    return ADCWords::summary(m_state.type);
}

QString ADCStatus::description() const
{
    switch (m_state.type) {
    case ADCType::userCredentials:
        return QCoreApplication::translate("ADCStatus", "User credentials");
    case ADCType::serviceAccountKey:
        return QCoreApplication::translate("ADCStatus", "Service account key");
    case ADCType::impersonatedServiceAccount:
        return QCoreApplication::translate("ADCStatus", "Impersonated service account");
    case ADCType::none:
        return QCoreApplication::translate("ADCStatus", "Not configured");
    }
    Q_UNREACHABLE();
}

QString ADCStatus::symbol() const
{
    switch (m_state.type) {
    case ADCType::userCredentials:
        return u"person.badge.key"_s;
    case ADCType::serviceAccountKey:
        return u"key.fill"_s;
    case ADCType::impersonatedServiceAccount:
        return u"bolt.badge.a"_s;
    case ADCType::none:
        return u"key"_s;
    }
    Q_UNREACHABLE();
}

QString ADCStatus::typeName() const
{
    switch (m_state.type) {
    case ADCType::userCredentials:
        return QCoreApplication::translate("ADCStatus", "User Credentials (authorized_user)");
    case ADCType::serviceAccountKey:
        return QCoreApplication::translate("ADCStatus", "Service Account Key");
    case ADCType::impersonatedServiceAccount:
        return QCoreApplication::translate("ADCStatus", "Impersonated Service Account");
    case ADCType::none:
        return QCoreApplication::translate("ADCStatus", "Not Configured");
    }
    Q_UNREACHABLE();
}

bool ADCStatus::isValid() const
{
    return m_state.isValid;
}

bool ADCStatus::hasClientEmail() const
{
    return m_state.clientEmail.has_value();
}

QString ADCStatus::clientEmail() const
{
    return m_state.clientEmail.value_or(QString());
}

bool ADCStatus::hasQuotaProject() const
{
    return m_state.quotaProject.has_value();
}

QString ADCStatus::quotaProject() const
{
    return m_state.quotaProject.value_or(QString());
}

bool ADCStatus::isImpersonating() const
{
    return m_state.type == ADCType::impersonatedServiceAccount && m_state.clientEmail.has_value();
}

QString ADCStatus::impersonatedEmail() const
{
    return isImpersonating() ? *m_state.clientEmail : QString();
}

} // namespace torvi
