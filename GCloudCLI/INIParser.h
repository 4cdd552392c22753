// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>

/// Parser of gcloud's property files, the dialect of INI that Python's configparser writes.
namespace torvi::INIParser {

/// From section name to its keys and their values.
using Sections = QMap<QString, QMap<QString, QString>>;

/// The sections of a property file, given its whole text. Never fails: what is neither a section
/// header nor a "key = value" line is passed over.
///
/// Keys before the first header belong to the section with the empty name. A section without keys
/// is in the result; a repeated header reopens its section; a repeated key overwrites the value.
/// Names are case-sensitive. Comments are whole lines only, and values stand as they are written:
/// quotes are kept, and so is the "%%" that gcloud writes for a "%".
[[nodiscard]] Sections parse(const QString &text);

} // namespace torvi::INIParser
