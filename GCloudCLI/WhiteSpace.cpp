// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/WhiteSpace.h"

#include <algorithm>
#include <iterator>

namespace torvi {

namespace {

template <typename Predicate>
QStringView trimmed(QStringView text, Predicate isTrimmed)
{
    const auto begin = std::find_if_not(text.begin(), text.end(), isTrimmed);
    const auto end = std::find_if_not(text.rbegin(), std::make_reverse_iterator(begin), isTrimmed);
    return { begin, end.base() };
}

} // namespace

bool isLineBreak(QChar character)
{
    const char16_t unit = character.unicode();
    return (unit >= u'\n' && unit <= u'\r') || unit == char16_t{ 0x85 } || unit == u'\u2028'
        || unit == u'\u2029';
}

bool isWhiteSpace(QChar character)
{
    return character == u'\t' || character.category() == QChar::Separator_Space;
}

QStringView trimmedWhiteSpace(QStringView text)
{
    return trimmed(text, isWhiteSpace);
}

QStringView trimmedWhiteSpaceAndLineBreaks(QStringView text)
{
    return trimmed(
        text, [](QChar character) { return isWhiteSpace(character) || isLineBreak(character); });
}

QList<QStringView> lines(QStringView text)
{
    QList<QStringView> result;
    QStringView::const_iterator begin = text.begin();
    while (true) {
        const QStringView::const_iterator end = std::find_if(begin, text.end(), isLineBreak);
        result.append(QStringView(begin, end));
        if (end == text.end()) {
            return result;
        }
        begin = std::next(end);
    }
}

} // namespace torvi
