// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "VeldraUI/Clipboard.h"

#include <QStringList>

namespace torvi {

/// Notes each write, as in "text hello" and "secret token".
class FakeClipboard final : public Clipboard
{
public:
    QStringList writes;

    void setText(const QString &text) override
    {
        writes.append(QStringLiteral("text ") + text);
    }

    void setSecret(const QString &secret) override
    {
        writes.append(QStringLiteral("secret ") + secret);
    }
};

} // namespace torvi
