// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSet>
#include <QString>

namespace torvi {

/// The projects that the user pinned. Main thread only.
class FavoritesStoring : public QObject
{
    Q_OBJECT

public:
    [[nodiscard]] virtual bool isPinned(const QString &projectId) const = 0;
    virtual void pin(const QString &projectId) = 0;
    virtual void unpin(const QString &projectId) = 0;
    [[nodiscard]] virtual QSet<QString> allPinned() const = 0;

Q_SIGNALS:
    void changed();
};

} // namespace torvi
