// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/SavedAccountListModel.h"

#include "VeldraUI/NextRows.h"

namespace torvi {

int SavedAccountListModel::count() const
{
    return rowCount();
}

QVariant SavedAccountListModel::data(const QModelIndex &index, int role) const
{
    const ServiceAccount &account = rowAt(index).account;
    switch (role) {
    case EmailRole:
        return account.email;
    case TitleRole:
        return account.displayName.value_or(account.email);
    default:
        return {};
    }
}

QHash<int, QByteArray> SavedAccountListModel::roleNames() const
{
    return { { EmailRole, "email" }, { TitleRole, "title" } };
}

void SavedAccountListModel::update()
{
    QList<ServiceAccountRow> next;
    for (const ServiceAccount &account : savedAccounts()) {
        next.push_back({ account, true });
    }
    const int before = count();
    const std::vector<int> nextRows = nextRowsByIdentity(
        rows(), next, [](const ServiceAccountRow &row) { return row.account.email; });
    change({ next.begin(), next.end() }, nextRows);
    if (count() != before) {
        Q_EMIT countChanged();
    }
}

} // namespace torvi
