// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/ViewFactory.h"

#include <QQmlEngine>

class QQuickView;
class QWindow;

namespace torvi {

/// Makes the views of VeldraUI in windows. The QML engine is made with the first of them.
class QuickViewFactory final : public ViewFactory
{
public:
    using BringToFront = std::function<void(QWindow &)>;

    /// `bringToFront` raises a window that is shown and gives it the keyboard.
    explicit QuickViewFactory(BringToFront bringToFront);
    ~QuickViewFactory() override;

    [[nodiscard]] std::unique_ptr<Popover>
    makePopover(AuthStateManager &stateManager, std::function<void()> onOpenManager) override;
    [[nodiscard]] std::unique_ptr<Window>
    makeManagerWindow(AuthStateManager &stateManager,
                      std::function<void(const Window &)> onWillClose) override;

    [[nodiscard]] bool hasEngine() const;

private:
    [[nodiscard]] QQmlEngine *engine();

    BringToFront m_bringToFront;
    std::unique_ptr<QQmlEngine> m_engine;
};

} // namespace torvi
