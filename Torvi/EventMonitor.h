// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/GlobalEventMonitoring.h"

namespace torvi {

/// Tells a handler of clicks outside of the application, between start() and stop(). Main thread
/// only.
class EventMonitor final
{
public:
    using Handler = std::function<void(const std::optional<GlobalEvent> &)>;

    /// `events` must outlive this object.
    EventMonitor(GlobalEventMonitoring &events, Qt::MouseButtons mask, Handler handler);
    ~EventMonitor() = default;
    Q_DISABLE_COPY_MOVE(EventMonitor)

    /// A token that is held already is overwritten, not removed first.
    void start();
    void stop();

private:
    GlobalEventMonitoring &m_events;
    std::unique_ptr<GlobalEventMonitoring::Token> m_monitor;
    Qt::MouseButtons m_mask;
    Handler m_handler;
};

} // namespace torvi
