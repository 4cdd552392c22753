// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <simdjson.h>

namespace torvi {

/// One JSON text, parsed whole: what it returns is known to be well-formed to its last byte.
///
/// Any value may stand at the top level. A leading byte-order mark is dropped; a number of more
/// than 64 bits is rounded as a double is.
class JSONDocument
{
public:
    /// Errors: throws std::runtime_error, whose text says what is wrong and where.
    explicit JSONDocument(QByteArray utf8);

    /// The value at the top level. It, and all that is reached from it, lives as long as this
    /// document.
    [[nodiscard]] simdjson::dom::element root() const
    {
        return m_root;
    }

private:
    Q_DISABLE_COPY_MOVE(JSONDocument)

    /// Gives `utf8` the room behind its end that the parser may read.
    [[nodiscard]] simdjson::error_code parse(QByteArray &utf8);

    simdjson::dom::parser m_parser;
    simdjson::dom::element m_root;
};

} // namespace torvi
