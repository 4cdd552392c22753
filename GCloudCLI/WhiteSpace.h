// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringView>

/// What counts as a blank and as the end of a line in the text files that Torvi reads. Qt's own
/// notion differs: its trimmed() takes control characters too, its line splitting knows LF alone.
namespace torvi {

/// LF, CR, VT, FF, U+0085, U+2028 or U+2029.
[[nodiscard]] bool isLineBreak(QChar character);

/// The tab or one of Unicode's space separators; never a line break.
[[nodiscard]] bool isWhiteSpace(QChar character);

/// `text` without the white space at both ends. The result points into `text`.
[[nodiscard]] QStringView trimmedWhiteSpace(QStringView text);

/// `text` without the white space and line breaks at both ends. The result points into `text`.
[[nodiscard]] QStringView trimmedWhiteSpaceAndLineBreaks(QStringView text);

/// The lines of `text`: what stands before, between and after its line breaks. CR LF is two breaks
/// with an empty line between. The results point into `text`.
[[nodiscard]] QList<QStringView> lines(QStringView text);

} // namespace torvi
