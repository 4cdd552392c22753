// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/EventMonitor.h"

#include <utility>

namespace torvi {

EventMonitor::EventMonitor(GlobalEventMonitoring &events, Qt::MouseButtons mask, Handler handler)
    : m_events(events)
    , m_mask(mask)
    , m_handler(std::move(handler))
{
}

void EventMonitor::start()
{
    m_monitor = m_events.addGlobalMonitor(
        m_mask, [handler = m_handler](const GlobalEvent &event) { handler(event); });
}

void EventMonitor::stop()
{
    if (m_monitor) {
        m_events.removeMonitor(std::move(m_monitor));
    }
}

} // namespace torvi
