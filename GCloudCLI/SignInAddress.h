// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

/// The address of Google's sign-in page in what gcloud prints.
namespace torvi::SignInAddress {

/// The first address in `chunk`, up to the next white space and byte for byte as printed. Nothing
/// when there is none, when it is no valid URL, or when `chunk` is not UTF-8 as a whole.
/// Thread: any, several at once.
[[nodiscard]] std::optional<QString> find(QByteArrayView chunk);

} // namespace torvi::SignInAddress
