// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/StartUpLine.h"

#include "GCloudCLI/WhiteSpace.h"

namespace torvi::StartUpLine {

namespace {

constexpr QByteArrayView kPathFile = "google-cloud-sdk/path.";
constexpr QStringView kPathFileText = u"google-cloud-sdk/path.";

std::optional<QStringView> afterLast(QChar separator, QStringView text)
{
    const qsizetype position = text.lastIndexOf(separator);
    return position < 0 ? std::nullopt : std::optional(text.sliced(position + 1));
}

std::optional<QStringView> afterLastQuote(QStringView text)
{
    const auto afterSingleQuote = afterLast(u'\'', text);
    return afterSingleQuote.has_value() ? afterSingleQuote : afterLast(u'"', text);
}

} // namespace

bool canBeIn(QByteArrayView file)
{
    return file.contains(kPathFile);
}

std::optional<QString> sdkParentFolder(QStringView line)
{
    const qsizetype position = line.indexOf(kPathFileText);
    if (position < 0) {
        return std::nullopt;
    }
    const QStringView before = trimmedWhiteSpace(line.first(position));
    auto folder = afterLastQuote(before);
    if (!folder.has_value() || folder->isEmpty()) {
        folder = afterLast(u' ', before);
    }
    if (!folder.has_value() || folder->isEmpty()) {
        return std::nullopt;
    }
    return folder->toString();
}

} // namespace torvi::StartUpLine
