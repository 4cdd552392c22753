// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/FavoritesStore.h"

#include "GCloudStateManager/Preferences.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

const QString kKey = u"com.veldra.favorites"_s;

} // namespace

FavoritesStore::FavoritesStore(std::shared_ptr<Preferences> preferences)
    : m_preferences(std::move(preferences))
{
    const QStringList stored = m_preferences->strings(kKey);
    m_pinnedIds = QSet<QString>(stored.begin(), stored.end());
}

bool FavoritesStore::isPinned(const QString &projectId) const
{
    return m_pinnedIds.contains(projectId);
}

void FavoritesStore::pin(const QString &projectId)
{
    QSet<QString> pinnedIds = m_pinnedIds;
    pinnedIds.insert(projectId);
    assign(pinnedIds);
}

void FavoritesStore::unpin(const QString &projectId)
{
    QSet<QString> pinnedIds = m_pinnedIds;
    pinnedIds.remove(projectId);
    assign(pinnedIds);
}

QSet<QString> FavoritesStore::allPinned() const
{
    return m_pinnedIds;
}

void FavoritesStore::assign(const QSet<QString> &pinnedIds)
{
    const bool isChange = std::exchange(m_pinnedIds, pinnedIds) != pinnedIds;
    QStringList sorted = pinnedIds.values();
    std::sort(sorted.begin(), sorted.end());
    m_preferences->setStrings(kKey, sorted);
    if (isChange) {
        Q_EMIT changed();
    }
}

} // namespace torvi
