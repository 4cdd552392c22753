// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/RecentStore.h"

#include "GCloudStateManager/Preferences.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

const QString kKey = u"com.veldra.recents"_s;
constexpr qsizetype kMaximumRecents = 10;

} // namespace

RecentStore::RecentStore(std::shared_ptr<Preferences> preferences)
    : m_preferences(std::move(preferences))
    , m_recents(m_preferences->strings(kKey))
{
}

void RecentStore::recordUsage(const QString &projectId)
{
    QStringList recents = m_recents;
    recents.removeAll(projectId);
    recents.prepend(projectId);
    recents = recents.first(std::min(recents.size(), kMaximumRecents));

    const bool isChange = std::exchange(m_recents, recents) != recents;
    m_preferences->setStrings(kKey, recents);
    if (isChange) {
        Q_EMIT changed();
    }
}

QStringList RecentStore::recentProjectIds() const
{
    return m_recents;
}

} // namespace torvi
