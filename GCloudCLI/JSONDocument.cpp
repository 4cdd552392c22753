// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/JSONDocument.h"

#include "GCloudCLI/JSONSyntaxError.h"

#include <QRegularExpression>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

/// `utf8` with its long whole numbers written as doubles: the parser refuses whole numbers of more
/// than 64 bits, which JSON allows.
QByteArray withRoundedNumbers(const QByteArray &utf8)
{
    static const QRegularExpression stringOrLongNumber(
        uR"("[^"\\]*+(?:\\.[^"\\]*+)*+"(*SKIP)(*FAIL)|(?<=[\[,:\s]|^)(-?\d{19,})(?![\d.eE]))"_s);
    return QString::fromUtf8(utf8).replace(stringOrLongNumber, u"\\1.0"_s).toUtf8();
}

} // namespace

JSONDocument::JSONDocument(QByteArray utf8)
{
    if (utf8.startsWith("\xEF\xBB\xBF")) {
        utf8.remove(0, 3);
    }
    simdjson::error_code error = parse(utf8);
    if (error == simdjson::NUMBER_ERROR) {
        QByteArray rounded = withRoundedNumbers(utf8);
        error = parse(rounded);
    }
    if (error != simdjson::SUCCESS) {
        throw std::runtime_error(describeSyntaxError(utf8, simdjson::error_message(error)));
    }
}

simdjson::error_code JSONDocument::parse(QByteArray &utf8)
{
    const qsizetype size = utf8.size();
    utf8.resize(size + static_cast<qsizetype>(simdjson::SIMDJSON_PADDING));
    utf8.squeeze(); // QString::toUtf8() leaves room for three times the text
    const simdjson::error_code error
        = m_parser.parse(utf8.constData(), static_cast<size_t>(size), false).get(m_root);
    utf8.truncate(size);
    return error;
}

} // namespace torvi
