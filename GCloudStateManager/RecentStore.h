// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/RecentStoring.h"

#include <memory>

namespace torvi {

class Preferences;

/// The last ten projects used, read once and stored whole at every use.
class RecentStore final : public RecentStoring
{
    Q_OBJECT

public:
    /// A stored list that is longer stays so until the next use.
    explicit RecentStore(std::shared_ptr<Preferences> preferences);

    void recordUsage(const QString &projectId) override;
    [[nodiscard]] QStringList recentProjectIds() const override;

private:
    const std::shared_ptr<Preferences> m_preferences;
    QStringList m_recents;
};

} // namespace torvi
