// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/Utf8.h"

namespace torvi {

std::optional<QString> decodeUtf8(QByteArrayView bytes)
{
    if (!bytes.isValidUtf8()) {
        return std::nullopt;
    }
    return QString::fromUtf8(bytes); // drops the byte-order mark
}

} // namespace torvi
