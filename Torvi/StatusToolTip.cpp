// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/StatusToolTip.h"

#include "GCloudStateManager/ADCWords.h"
#include "GCloudStateManager/EnvironmentOverride.h"

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

template <typename Record>
QString textOf(const std::optional<Record> &record, QString Record::*field)
{
    return record ? (*record).*field : StatusToolTip::tr("None");
}

QString textFor(const AuthContext &context)
{
    QStringList lines{
        StatusToolTip::tr("Project: %1").arg(textOf(context.activeProject, &Project::id)),
        StatusToolTip::tr("Account: %1").arg(textOf(context.activeAccount, &Account::email)),
        StatusToolTip::tr("Configuration: %1")
            .arg(textOf(context.activeConfiguration, &Configuration::name)),
    };
    if (context.impersonatedServiceAccount) {
        lines.append(
            StatusToolTip::tr("Impersonating: %1").arg(context.impersonatedServiceAccount->email));
    }
    lines.append(StatusToolTip::tr("ADC: %1").arg(ADCWords::summary(context.adcState.type)));
    return lines.join(u'\n');
}

} // namespace

StatusToolTip::StatusToolTip(StatusItem &statusItem, const AuthStateManager &stateManager,
                             const QProcessEnvironment &environment)
    : m_statusItem(statusItem)
    , m_stateManager(stateManager)
    , m_environment(environment)
{
    connect(&stateManager, &AuthStateManager::currentContextChanged, this, &StatusToolTip::update);
    update();
}

void StatusToolTip::update()
{
    // Some panels show the first line alone: it has to say the most.
    const AuthContext &context = m_stateManager.currentContext();
    const QString title
        = context.activeProject ? tr("Torvi – %1").arg(context.activeProject->id) : u"Torvi"_s;
    QStringList lines{ textFor(context) };
    for (const EnvironmentOverride &each :
         EnvironmentOverride::all(m_stateManager.configReader(), m_environment)) {
        lines.append(each.description());
    }
    m_statusItem.setToolTip(title, lines.join(u'\n'));
}

} // namespace torvi
