// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QQuickView>

#include <functional>

namespace torvi {

/// The manager window itself: an ordinary window in the middle of the screen.
class ManagerWindow final : public QQuickView
{
    Q_OBJECT

public:
    static constexpr QSize kSize{ 600, 450 };
    static constexpr QSize kSmallestSize{ 480, 360 };

    ManagerWindow(QQmlEngine *engine, std::function<void()> onWillClose);

    void center(QScreen *screen);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    std::function<void()> m_onWillClose;
};

} // namespace torvi
