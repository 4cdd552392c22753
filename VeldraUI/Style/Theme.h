// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "VeldraUI/Style/ColorRoles.h"

#include <QObject>
#include <QtQml/qqml.h>

class QQuickWindow;

namespace torvi {

/// Tells each QML item which colours it is drawn in: `Theme.colors.secondary`.
///
/// `Theme.dark` is set on a window or on an item and holds for everything in it, until something
/// inside sets it again; where nothing sets it, it is true. An item that is moved to another parent
/// keeps its appearance until it enters a window; nothing here moves one.
///
/// Thread: main thread only.
class Theme final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Theme is only ever attached")
    QML_ATTACHED(torvi::Theme)
    Q_PROPERTY(bool dark READ isDark WRITE setDark RESET resetDark NOTIFY changed)
    Q_PROPERTY(torvi::ColorRoles *colors READ colors NOTIFY changed)

public:
    /// `attachee` is the item, window or popup that this is attached to; it becomes the parent.
    explicit Theme(QObject *attachee);
    ~Theme() override;
    Q_DISABLE_COPY_MOVE(Theme)

    /// What holds for a window's whole content, for C++. An engine must have imported the module.
    static Theme &of(QQuickWindow &window);

    static Theme *qmlAttachedProperties(QObject *attachee);

    [[nodiscard]] bool isDark() const;
    [[nodiscard]] ColorRoles *colors() const;

    void setDark(bool dark);
    void resetDark();

Q_SIGNALS:
    void changed();

private:
    void resolve();
    static void resolveAll();

    bool m_isDark = true;
    bool m_isSetHere = false;
};

} // namespace torvi
