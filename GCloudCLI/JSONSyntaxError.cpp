// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/JSONSyntaxError.h"

#include <QJsonDocument>
#include <QJsonParseError>

#include <algorithm>
#include <cctype>
#include <optional>

namespace torvi {

namespace {

std::string position(QByteArrayView utf8, qsizetype offset)
{
    const QByteArrayView before = utf8.first(std::clamp<qsizetype>(offset, 0, utf8.size()));
    const QByteArrayView line = before.sliced(before.lastIndexOf('\n') + 1);
    const auto column = std::ranges::count_if(line, [](char byte) {
        return (byte & 0xC0) != 0x80; // not in the middle of a character
    });
    return " at line " + std::to_string(std::ranges::count(before, '\n') + 1) + ", column "
        + std::to_string(column + 1);
}

bool isHexDigit(char byte)
{
    return std::isxdigit(static_cast<uchar>(byte)) != 0;
}

/// The code unit of the escape "\uXXXX" that `text` begins with.
std::optional<uint> escapedUnit(QByteArrayView text)
{
    const QByteArrayView digits = text.startsWith("\\u") ? text.sliced(2) : QByteArrayView();
    if (digits.size() < 4 || !std::all_of(digits.begin(), digits.begin() + 4, isHexDigit)) {
        return std::nullopt;
    }
    return digits.first(4).toByteArray().toUInt(nullptr, 16);
}

/// Length of the escape sequence, or pair of them, that `text` begins with; 0 for an invalid one.
qsizetype escapeLength(QByteArrayView text)
{
    if (text.size() >= 2 && QByteArrayView("\"\\/bfnrt").contains(text[1])) {
        return 2;
    }
    const std::optional<uint> unit = escapedUnit(text);
    if (!unit || !QChar::isSurrogate(*unit)) {
        return unit ? 6 : 0;
    }
    const std::optional<uint> next = escapedUnit(text.sliced(6));
    return QChar::isHighSurrogate(*unit) && next && QChar::isLowSurrogate(*next) ? 12 : 0;
}

/// Where the first string goes wrong: a bare control character, an unknown escape, half a surrogate
/// pair. Qt's parser lets all three pass. Nothing when every string is well-formed.
std::optional<qsizetype> invalidStringOffset(QByteArrayView utf8)
{
    bool isInString = false;
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        if (utf8[i] == '"') {
            isInString = !isInString;
        } else if (isInString && static_cast<uchar>(utf8[i]) < 0x20) {
            return i;
        } else if (isInString && utf8[i] == '\\') {
            const qsizetype length = escapeLength(utf8.sliced(i));
            if (length == 0) {
                return i;
            }
            i += length - 1;
        }
    }
    return std::nullopt;
}

} // namespace

std::string describeSyntaxError(const QByteArray &utf8, std::string_view reason)
{
    if (utf8.trimmed().isEmpty()) {
        return "the text is empty";
    }
    QJsonParseError error;
    QJsonDocument::fromJson(utf8, &error);
    if (error.error != QJsonParseError::NoError) {
        return error.errorString().toStdString() + position(utf8, error.offset);
    }
    if (const std::optional<qsizetype> offset = invalidStringOffset(utf8)) {
        return "invalid string" + position(utf8, *offset);
    }
    return std::string(reason);
}

} // namespace torvi
