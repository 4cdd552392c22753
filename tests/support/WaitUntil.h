// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <chrono>
#include <functional>

namespace torvi {

/// Runs the event loop until `condition` holds; false when it does not within a time that is long
/// for any machine, so that a broken program fails a test in place of hanging it.
[[nodiscard]] inline bool waitUntil(const std::function<bool()> &condition)
{
    using namespace std::chrono_literals;
    const QDeadlineTimer limit(30s);
    QTimer wake; // conditions may change without an event
    wake.start(5ms);
    bool holds = condition();
    while (!holds && !limit.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        holds = condition();
    }
    return holds;
}

} // namespace torvi
