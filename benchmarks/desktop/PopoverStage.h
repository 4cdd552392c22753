// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/Linux/SystemClipboard.h"
#include "Torvi/Quick/QuickViewFactory.h"
#include "benchmarks/desktop/SampleState.h"

#include <QQuickItem>
#include <QQuickView>

#include <functional>
#include <memory>

namespace torvi {

/// The popover over a real state of so many projects, and the times until its frames are shown.
class PopoverStage final
{
public:
    explicit PopoverStage(int projectCount);

    [[nodiscard]] AuthStateManager &manager() const;

    /// In milliseconds, from the call on.
    [[nodiscard]] double timeToShow();
    void close();

    /// In milliseconds: what `act` does, until the next frame is shown.
    [[nodiscard]] double timeToFrame(const std::function<void()> &act);
    void type(int key, const QString &text);
    /// Returns when no frame has been shown for a while.
    void settle();

    [[nodiscard]] QQuickItem *item(const QString &path) const;
    /// The rows of projects that have an item, and those of them that are on screen.
    [[nodiscard]] std::pair<int, int> delegates() const;

private:
    void waitForFrame();

    SampleState m_state;
    SystemClipboard m_clipboard;
    QuickViewFactory m_views;
    std::unique_ptr<Popover> m_popover;
    QQuickView *m_window = nullptr; ///< the popover's
};

} // namespace torvi
