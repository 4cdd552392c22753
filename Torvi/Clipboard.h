// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QtGlobal>

namespace torvi {

/// The desktop's clipboard, the one that Paste reads. Main thread only.
class Clipboard
{
public:
    virtual ~Clipboard() = default;

    /// Replaces what is on the clipboard.
    virtual void setText(const QString &text) = 0;
    /// As setText(), and asks clipboard managers not to keep or show it.
    virtual void setSecret(const QString &secret) = 0;

protected:
    Clipboard() = default;
    Q_DISABLE_COPY_MOVE(Clipboard)
};

} // namespace torvi
