// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/Style/Symbols.h"

#include "VeldraUI/Style/SymbolImageProvider.h"

#include <QQmlEngine>

namespace torvi {

using namespace Qt::StringLiterals;

Symbols *Symbols::create(QQmlEngine *engine, QJSEngine *scriptEngine)
{
    Q_UNUSED(scriptEngine)
    engine->addImageProvider(u"symbols"_s, new SymbolImageProvider);
    return new Symbols;
}

QUrl Symbols::source(const QString &name, const QColor &color) const
{
    if (name.isEmpty()) {
        return {};
    }
    const QString hex = color.name(QColor::HexArgb).mid(1);
    return QUrl(u"image://symbols/"_s + name + u'/' + hex);
}

} // namespace torvi
