// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace torvi {

/// `bytes` as text, without a leading byte-order mark; nothing when they are not valid UTF-8.
///
/// The strict counterpart of QString::fromUtf8(), which never fails but puts replacement characters
/// in the place of what it cannot decode.
[[nodiscard]] std::optional<QString> decodeUtf8(QByteArrayView bytes);

} // namespace torvi
