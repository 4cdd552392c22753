// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/ADCState.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace torvi {

/// The application default credentials as QML sees them, with each view's own words for their kind.
/// A value; each `has…` tells what is absent from what is empty.
class ADCStatus
{
    Q_GADGET
    QML_VALUE_TYPE(adcStatus)
    Q_PROPERTY(bool isConfigured READ isConfigured)
    Q_PROPERTY(QString summary READ summary)
    Q_PROPERTY(QString description READ description)
    Q_PROPERTY(QString symbol READ symbol)
    Q_PROPERTY(QString typeName READ typeName)
    Q_PROPERTY(bool isValid READ isValid)
    Q_PROPERTY(bool hasClientEmail READ hasClientEmail)
    Q_PROPERTY(QString clientEmail READ clientEmail)
    Q_PROPERTY(bool hasQuotaProject READ hasQuotaProject)
    Q_PROPERTY(QString quotaProject READ quotaProject)
    Q_PROPERTY(bool isImpersonating READ isImpersonating)
    Q_PROPERTY(QString impersonatedEmail READ impersonatedEmail)

public:
    ADCStatus() = default;
    explicit ADCStatus(ADCState state);

    [[nodiscard]] bool isConfigured() const;
    /// The kind, in the words of the active-context card.
    [[nodiscard]] QString summary() const;
    /// The kind, in the words of the popover's own section for it.
    [[nodiscard]] QString description() const;
    /// The symbol beside description().
    [[nodiscard]] QString symbol() const;
    /// The kind, in the words of the manager window.
    [[nodiscard]] QString typeName() const;
    [[nodiscard]] bool isValid() const;
    [[nodiscard]] bool hasClientEmail() const;
    [[nodiscard]] QString clientEmail() const;
    [[nodiscard]] bool hasQuotaProject() const;
    [[nodiscard]] QString quotaProject() const;
    /// Whether the credentials impersonate a service account whose e-mail is known.
    [[nodiscard]] bool isImpersonating() const;
    /// Empty unless isImpersonating().
    [[nodiscard]] QString impersonatedEmail() const;

    bool operator==(const ADCStatus &) const = default;

private:
    ADCState m_state;
};

} // namespace torvi
