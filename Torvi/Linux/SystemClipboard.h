// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/Clipboard.h"

namespace torvi {

/// The session's clipboard, by way of the toolkit.
class SystemClipboard final : public Clipboard
{
public:
    void setText(const QString &text) override;
    void setSecret(const QString &secret) override;
};

} // namespace torvi
