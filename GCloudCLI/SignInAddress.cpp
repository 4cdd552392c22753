// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/SignInAddress.h"

#include "GCloudCLI/Utf8.h"

#include <QRegularExpression>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace torvi::SignInAddress {

std::optional<QString> find(QByteArrayView chunk)
{
    const auto text = decodeUtf8(chunk);
    if (!text.has_value()) {
        return std::nullopt;
    }
    // Made anew each time: one expression must not be used by several threads.
    const QRegularExpression address(uR"(https://accounts\.google\.com/o/oauth2/auth[^\s]*)"_s,
                                     QRegularExpression::UseUnicodePropertiesOption);
    const QString found = address.match(*text).captured();
    if (found.isEmpty() || !QUrl(found, QUrl::StrictMode).isValid()) {
        return std::nullopt;
    }
    return found; // not QUrl's own text, which may spell escapes differently
}

} // namespace torvi::SignInAddress
