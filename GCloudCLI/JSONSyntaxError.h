// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <string>
#include <string_view>

namespace torvi {

/// What is wrong with the malformed JSON text `utf8` and where, as in "unterminated string at line
/// 3, column 14". Lines and columns count from 1, columns in characters.
///
/// The fast parser names no place, so this parses again, slowly and only for the message.
/// `reason` is what the fast one said, for a text that the slow one accepts.
[[nodiscard]] std::string describeSyntaxError(const QByteArray &utf8, std::string_view reason);

} // namespace torvi
