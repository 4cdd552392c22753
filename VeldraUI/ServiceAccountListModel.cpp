// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/ServiceAccountListModel.h"

#include "VeldraUI/NextRows.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace torvi {

namespace {

QList<ServiceAccountRow> rowsOf(const QList<ServiceAccount> &saved,
                                const QList<ServiceAccount> &discovered)
{
    QList<ServiceAccountRow> rows;
    rows.reserve(saved.size() + discovered.size());
    QSet<QString> savedEmails;
    for (const ServiceAccount &account : saved) {
        savedEmails.insert(account.email);
        rows.push_back({ account, true });
    }
    for (const ServiceAccount &account : discovered) {
        if (!savedEmails.contains(account.email)) {
            rows.push_back({ account, false });
        }
    }
    return rows;
}

/// An account that is saved, or no longer is, leaves its section and enters the other.
QString identityOf(const ServiceAccountRow &row)
{
    return (row.isSaved ? u's' : u'd') + row.account.email;
}

} // namespace

int ServiceAccountListModel::savedCount() const
{
    return m_savedCount;
}

int ServiceAccountListModel::discoveredCount() const
{
    return rowCount() - m_savedCount;
}

bool ServiceAccountListModel::isLoading() const
{
    return m_isLoading;
}

bool ServiceAccountListModel::discoveryFailed() const
{
    return m_discoveryFailed;
}

QVariant ServiceAccountListModel::data(const QModelIndex &index, int role) const
{
    const ServiceAccountRow &row = rowAt(index);
    switch (role) {
    case EmailRole:
        return row.account.email;
    case DisplayNameRole:
        return row.account.displayName.value_or(QString());
    case IsSavedRole:
        return row.isSaved;
    default:
        return {};
    }
}

QHash<int, QByteArray> ServiceAccountListModel::roleNames() const
{
    return { { EmailRole, "email" },
             { DisplayNameRole, "displayName" },
             { IsSavedRole, "isSaved" } };
}

void ServiceAccountListModel::discover(const QString &projectId)
{
    QMetaObject::invokeMethod(
        this, [this, projectId] { discoverNow(projectId); }, Qt::QueuedConnection);
}

QCoro::Task<> ServiceAccountListModel::discoverNow(QString projectId)
{
    if (!stateManager()) {
        co_return;
    }
    const QPointer self(this);
    m_isLoading = true;
    m_discoveryFailed = false;
    Q_EMIT changed();
    QList<ServiceAccount> found
        = co_await stateManager()->manager().fetchServiceAccounts(std::move(projectId));
    if (!self) {
        co_return;
    }
    m_discovered = std::move(found);
    m_discoveryFailed = m_discovered.isEmpty();
    m_isLoading = false;
    update();
}

void ServiceAccountListModel::save(const QString &email)
{
    const auto account = std::find_if(
        m_discovered.cbegin(), m_discovered.cend(),
        [&email](const ServiceAccount &candidate) { return candidate.email == email; });
    if (stateManager() && account != m_discovered.cend()) {
        stateManager()->manager().serviceAccountStore().addServiceAccount(
            ServiceAccount(*account)); // the store tells of it before it returns
    }
}

void ServiceAccountListModel::add(const QString &email, const QString &displayName)
{
    if (stateManager()) {
        stateManager()->manager().serviceAccountStore().addServiceAccount(
            { email, projectId(),
              displayName.isEmpty() ? std::nullopt : std::optional(displayName) });
    }
}

void ServiceAccountListModel::remove(const QString &email)
{
    if (stateManager()) {
        stateManager()->manager().serviceAccountStore().removeServiceAccount(email, projectId());
    }
}

void ServiceAccountListModel::update()
{
    const QList<ServiceAccount> saved = savedAccounts();
    const QList<ServiceAccountRow> next = rowsOf(saved, m_discovered);
    m_savedCount = static_cast<int>(saved.size());
    change({ next.begin(), next.end() }, nextRowsByIdentity(rows(), next, &identityOf));
    Q_EMIT changed();
}

} // namespace torvi
