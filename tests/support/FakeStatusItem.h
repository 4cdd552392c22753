// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/StatusItem.h"

#include <QStringList>

namespace torvi {

/// Keeps what it was told, and all of it in its order in `log`.
class FakeStatusItem final : public StatusItem
{
public:
    explicit FakeStatusItem(QStringList *sharedLog = nullptr)
        : log(sharedLog == nullptr ? &m_ownLog : sharedLog)
    {
    }

    bool isWithButton = true;
    QString symbol;
    QString description;
    QString title;
    QString toolTipTitle;
    QString toolTipText;
    std::function<void(const QPoint &)> action;
    QStringList *log;

    [[nodiscard]] bool hasButton() const override
    {
        return isWithButton;
    }

    void setImage(const QString &newSymbol, const QString &newDescription) override
    {
        symbol = newSymbol;
        description = newDescription;
        log->append(QStringLiteral("image %1 (%2)").arg(symbol, description));
    }

    void setTitle(const QString &newTitle) override
    {
        title = newTitle;
        log->append(QStringLiteral("title [%1]").arg(title));
    }

    void setToolTip(const QString &newTitle, const QString &newText) override
    {
        toolTipTitle = newTitle;
        toolTipText = newText;
    }

    void setAction(std::function<void(const QPoint &)> newAction) override
    {
        action = std::move(newAction);
        log->append(QStringLiteral("action"));
    }

private:
    QStringList m_ownLog;
};

} // namespace torvi
