// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/ServiceAccountStore.h"

#include "GCloudStateManager/Preferences.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

using AccountsByProject = ServiceAccountStoring::AccountsByProject;

const QString kKey = u"com.veldra.serviceaccounts"_s;

std::optional<QList<ServiceAccount>> decodedList(const QJsonValue &value)
{
    if (!value.isArray()) {
        return std::nullopt;
    }
    QList<ServiceAccount> accounts;
    const QJsonArray elements = value.toArray();
    for (const auto &element : elements) {
        const std::optional<ServiceAccount> account = ServiceAccount::decoded(element);
        if (!account) {
            return std::nullopt;
        }
        accounts.append(*account);
    }
    return accounts;
}

/// All or nothing: one wrong member makes the whole map empty.
AccountsByProject decoded(const QByteArray &json)
{
    const QJsonObject projects = QJsonDocument::fromJson(json).object();
    AccountsByProject accountsByProject;
    for (auto project = projects.begin(); project != projects.end(); ++project) {
        const std::optional<QList<ServiceAccount>> accounts = decodedList(project.value());
        if (!accounts) {
            return {};
        }
        accountsByProject.insert(project.key(), *accounts);
    }
    return accountsByProject;
}

QByteArray encoded(const AccountsByProject &accountsByProject)
{
    QJsonObject projects;
    for (auto project = accountsByProject.begin(); project != accountsByProject.end(); ++project) {
        QJsonArray accounts;
        for (const ServiceAccount &account : project.value()) {
            accounts.append(account.encoded());
        }
        projects.insert(project.key(), accounts);
    }
    return QJsonDocument(projects).toJson(QJsonDocument::Compact);
}

} // namespace

ServiceAccountStore::ServiceAccountStore(std::shared_ptr<Preferences> preferences)
    : m_preferences(std::move(preferences))
    , m_accountsByProject(decoded(m_preferences->data(kKey).value_or(QByteArray())))
{
}

QList<ServiceAccount> ServiceAccountStore::serviceAccounts(const QString &forProject) const
{
    return m_accountsByProject.value(forProject);
}

void ServiceAccountStore::addServiceAccount(const ServiceAccount &account)
{
    const QList<ServiceAccount> accounts = serviceAccounts(account.projectId);
    const bool isSaved
        = std::any_of(accounts.begin(), accounts.end(),
                      [&](const ServiceAccount &saved) { return saved.email == account.email; });
    if (isSaved) {
        return;
    }
    m_accountsByProject[account.projectId].append(account);
    save();
    Q_EMIT changed();
}

void ServiceAccountStore::removeServiceAccount(const QString &email, const QString &fromProject)
{
    QList<ServiceAccount> accounts = serviceAccounts(fromProject);
    accounts.removeIf([&](const ServiceAccount &saved) { return saved.email == email; });

    const AccountsByProject before = m_accountsByProject;
    if (accounts.isEmpty()) {
        m_accountsByProject.remove(fromProject);
    } else {
        m_accountsByProject.insert(fromProject, accounts);
    }
    save();
    if (m_accountsByProject != before) {
        Q_EMIT changed();
    }
}

ServiceAccountStoring::AccountsByProject ServiceAccountStore::allServiceAccounts() const
{
    return m_accountsByProject;
}

void ServiceAccountStore::save()
{
    m_preferences->setData(kKey, encoded(m_accountsByProject));
}

} // namespace torvi
