// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace torvi {

/// The text styles, sizes in points (device-independent pixels), in the desktop's own font.
///
/// Thread: main thread only.
class Typography final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QFont title READ title CONSTANT)
    Q_PROPERTY(QFont headline READ headline CONSTANT)
    Q_PROPERTY(QFont body READ body CONSTANT)
    Q_PROPERTY(QFont callout READ callout CONSTANT)
    Q_PROPERTY(QFont caption READ caption CONSTANT)

public:
    using QObject::QObject;

    /// Has the fonts and usual letters of most texts ready, which the first of them would wait for
    /// otherwise.
    static void loadFonts();

    [[nodiscard]] static QFont title();
    [[nodiscard]] static QFont headline();
    [[nodiscard]] static QFont body();
    [[nodiscard]] static QFont callout();
    [[nodiscard]] static QFont caption();
};

} // namespace torvi
