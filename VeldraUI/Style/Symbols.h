// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace torvi {

/// Where QML finds the picture of a symbol; making it gives its engine the SymbolImageProvider.
class Symbols final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    static Symbols *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    /// The picture of the symbol `name` in `color`, for an Image; empty when `name` is.
    Q_INVOKABLE [[nodiscard]] QUrl source(const QString &name, const QColor &color) const;

private:
    Symbols() = default;
};

} // namespace torvi
