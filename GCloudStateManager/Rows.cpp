// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/Rows.h"

#include "GCloudStateManager/ADCWords.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

constexpr QStringView kDim = u"\x1b[2m";
constexpr QStringView kWarning = u"\x1b[33m"; // the terminal's yellow is what comes next to orange
constexpr QStringView kReset = u"\x1b[0m";

QString coloured(const QString &text, QStringView colour, Colours colours)
{
    return colours == Colours::on && !text.isEmpty() ? colour.toString() + text + kReset.toString()
                                                     : text;
}

} // namespace

QString printable(QString text)
{
    std::ranges::replace_if(
        text, [](QChar character) { return character.category() == QChar::Other_Control; },
        QChar(QChar::ReplacementCharacter));
    return text;
}

QList<Row> contextRows(const AuthContext &context)
{
    QList<Row> rows{
        { QCoreApplication::translate("Rows", "Project"),
          context.activeProject ? context.activeProject->id
                                : QCoreApplication::translate("Rows", "None") },
        { QCoreApplication::translate("Rows", "Account"),
          context.activeAccount ? context.activeAccount->email
                                : QCoreApplication::translate("Rows", "None") },
    };
    if (context.impersonatedServiceAccount) {
        rows.append({ QCoreApplication::translate("Rows", "Impersonating"),
                      context.impersonatedServiceAccount->email, true });
    }
    rows.append(
        { QCoreApplication::translate("Rows", "ADC"), ADCWords::summary(context.adcState.type) });
    return rows;
}

QString aligned(const QList<Row> &rows, Colours colours)
{
    qsizetype width = 0;
    for (const Row &row : rows) {
        width = std::max(width, row.label.size());
    }
    QString lines;
    for (const Row &row : rows) {
        const QString label = printable(row.label);
        lines += coloured(row.value.isEmpty() ? label : label.leftJustified(width + 2),
                          row.isHighlighted ? kWarning : kDim, colours);
        lines += row.isHighlighted ? coloured(printable(row.value), kWarning, colours)
                                   : printable(row.value);
        lines += u'\n';
    }
    return lines;
}

} // namespace torvi
