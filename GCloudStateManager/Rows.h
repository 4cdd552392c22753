// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/AuthContext.h"

#include <QList>
#include <QString>

namespace torvi {

/// One line of text output: a label and a value.
struct Row
{
    QString label;
    QString value;
    bool isHighlighted = false;

    bool operator==(const Row &) const = default;
};

enum class Colours {
    off,
    on,
};

/// The rows of the active-context card: what is active, and the impersonation if there is one.
[[nodiscard]] QList<Row> contextRows(const AuthContext &context);

/// Control characters become U+FFFD, so that a value from a file cannot drive the terminal.
[[nodiscard]] QString printable(QString text);

/// The rows as printable lines, the values in one column. An empty value leaves no trailing blanks.
[[nodiscard]] QString aligned(const QList<Row> &rows, Colours colours = Colours::off);

} // namespace torvi
