// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "torvictl/BarLine.h"

#include "GCloudStateManager/Rows.h"
#include "torvictl/Json.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

QString textFor(const AuthContext &context)
{
    const QString project = context.activeProject
        ? context.activeProject->id
        : QCoreApplication::translate("BarLine", "no project");
    const QString text = context.impersonatedServiceAccount
        ? QCoreApplication::translate("BarLine", "%1 as %2")
              .arg(project, context.impersonatedServiceAccount->email.section(u'@', 0, 0))
        : project;
    return text.isEmpty() ? u"–"_s : printable(text);
}

QString toolTip(const AuthContext &context, const QStringList &notes)
{
    QStringList lines;
    for (const Row &row : contextRows(context)) {
        lines.append(printable(row.label + u": "_s + row.value));
    }
    for (const QString &note : notes) {
        lines.append(printable(note));
    }
    return lines.join(u'\n');
}

QByteArray waybarObject(const AuthContext &context, const QStringList &notes)
{
    QStringList classes;
    if (context.impersonatedServiceAccount) {
        classes.append(u"impersonating"_s);
    }
    if (!notes.isEmpty()) {
        classes.append(u"warning"_s);
    }
    return JsonObject()
        .member("text", textFor(context).toHtmlEscaped())
        .member("tooltip", toolTip(context, notes).toHtmlEscaped())
        .member("class", classes)
        .text();
}

/// No polybar of Debian 12 knows an escape for "%{": an invisible space parts the two.
QString withoutTags(QString text)
{
    return text.replace(u"%{"_s, u"%\u200b{"_s);
}

} // namespace

QByteArray barLine(const AuthContext &context, const QStringList &notes, BarFormat format)
{
    const QString text = textFor(context);
    const bool isHighlighted = context.impersonatedServiceAccount.has_value();
    switch (format) {
    case BarFormat::waybar:
        return waybarObject(context, notes);
    case BarFormat::polybar:
        return (isHighlighted ? u"%{F#ffa348}"_s + withoutTags(text) + u"%{F-}"_s
                              : withoutTags(text))
            .toUtf8();
    case BarFormat::i3blocks:
        return (isHighlighted ? u"<span color='#ffa348'>"_s + text.toHtmlEscaped() + u"</span>"_s
                              : text.toHtmlEscaped())
            .toUtf8();
    case BarFormat::plain:
        return text.toUtf8();
    }
    Q_UNREACHABLE();
}

} // namespace torvi
