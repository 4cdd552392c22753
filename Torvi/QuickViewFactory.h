// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/ViewFactory.h"
#include "VeldraUI/Clipboard.h"

#include <QQmlEngine>

class QQuickWindow;
class QWindow;

namespace torvi {

class PopoverWindow;

/// Makes the views of VeldraUI in windows. The QML engine, and each view's state, are made when the
/// first of them is shown.
class QuickViewFactory final : public ViewFactory
{
public:
    using BringToFront = std::function<void(QWindow &)>;
    using FollowColorScheme = std::function<void(QQuickWindow &)>;

    /// `clipboard` must outlive the views. `bringToFront` raises a window that is shown and gives
    /// it the keyboard; `followColorScheme` makes a window light or dark, now and whenever that
    /// changes.
    QuickViewFactory(Clipboard &clipboard, BringToFront bringToFront,
                     FollowColorScheme followColorScheme);
    ~QuickViewFactory() override;

    [[nodiscard]] std::unique_ptr<Popover>
    makePopover(AuthStateManager &stateManager, std::function<void()> onOpenManager) override;
    [[nodiscard]] std::unique_ptr<Window>
    makeManagerWindow(AuthStateManager &stateManager,
                      std::function<void(const Window &)> onWillClose) override;

    [[nodiscard]] bool hasEngine() const;

private:
    [[nodiscard]] QQmlEngine *engine();
    [[nodiscard]] std::unique_ptr<PopoverWindow>
    makePopoverWindow(AuthStateManager &stateManager, const std::function<void()> &onOpenManager);

    Clipboard &m_clipboard;
    BringToFront m_bringToFront;
    FollowColorScheme m_followColorScheme;
    std::unique_ptr<QQmlEngine> m_engine;
};

} // namespace torvi
