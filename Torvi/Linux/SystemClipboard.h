// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "VeldraUI/Clipboard.h"

namespace torvi {

/// The session's clipboard, by way of the toolkit and, for a text while no window of ours has the
/// keyboard, of what Wayland desktops offer instead.
class SystemClipboard final : public Clipboard
{
public:
    void setText(const QString &text) override;
    void setSecret(const QString &secret) override;
};

} // namespace torvi
