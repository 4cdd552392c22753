// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QQuickView>

namespace torvi {

/// The popover's window: frameless, in front of others, closed by Escape and by a press in another
/// window of this application. Closing hides it; what it shows stays loaded.
class PopoverWindow final : public QQuickView
{
    Q_OBJECT

public:
    explicit PopoverWindow(QQmlEngine *engine);

    /// Moves it to `frame` and fixes its size: a window manager that places windows itself then
    /// lets it float at least.
    void place(const QRect &frame, QScreen *screen);

Q_SIGNALS:
    /// The user asks for the manager window.
    void openManager();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
};

} // namespace torvi
