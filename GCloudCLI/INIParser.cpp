// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/INIParser.h"

#include "GCloudCLI/WhiteSpace.h"

namespace torvi::INIParser {

namespace {

bool isSkipped(QStringView line)
{
    return line.isEmpty() || line.startsWith(u'#') || line.startsWith(u';');
}

/// A bracket that is never closed makes no header.
bool isHeader(QStringView line)
{
    return line.startsWith(u'[') && line.endsWith(u']');
}

/// Without a pair in `line` the section is not even created.
void storePair(QStringView line, const QString &section, Sections &sections)
{
    const qsizetype separator = line.indexOf(u'=');
    if (separator < 0) {
        return;
    }
    const QStringView key = trimmedWhiteSpace(line.first(separator));
    if (!key.isEmpty()) {
        const QStringView value = trimmedWhiteSpace(line.sliced(separator + 1));
        sections[section].insert(key.toString(), value.toString());
    }
}

} // namespace

Sections parse(const QString &text)
{
    const QStringView withoutMark
        = QStringView(text).sliced(text.startsWith(QChar::ByteOrderMark) ? 1 : 0);
    Sections sections;
    QString current;
    for (const QStringView untrimmed : lines(withoutMark)) {
        const QStringView line = trimmedWhiteSpace(untrimmed);
        if (isSkipped(line)) {
            continue;
        }
        if (isHeader(line)) {
            current = trimmedWhiteSpace(line.sliced(1).chopped(1)).toString();
            sections[current]; // present even when it stays empty
        } else {
            storePair(line, current, sections);
        }
    }
    return sections;
}

} // namespace torvi::INIParser
