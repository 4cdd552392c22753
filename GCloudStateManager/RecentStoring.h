// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

namespace torvi {

/// The projects most recently switched to. Main thread only.
class RecentStoring : public QObject
{
    Q_OBJECT

public:
    /// Makes `projectId` the newest entry.
    virtual void recordUsage(const QString &projectId) = 0;
    /// Newest first.
    [[nodiscard]] virtual QStringList recentProjectIds() const = 0;

Q_SIGNALS:
    void changed();
};

} // namespace torvi
