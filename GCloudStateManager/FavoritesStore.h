// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/FavoritesStoring.h"

#include <memory>

namespace torvi {

class Preferences;

/// The pinned projects, read once and stored whole at every call that may change them.
class FavoritesStore final : public FavoritesStoring
{
    Q_OBJECT

public:
    explicit FavoritesStore(std::shared_ptr<Preferences> preferences);

    [[nodiscard]] bool isPinned(const QString &projectId) const override;
    void pin(const QString &projectId) override;
    void unpin(const QString &projectId) override;
    [[nodiscard]] QSet<QString> allPinned() const override;

private:
    void assign(const QSet<QString> &pinnedIds);

    const std::shared_ptr<Preferences> m_preferences;
    QSet<QString> m_pinnedIds;
};

} // namespace torvi
