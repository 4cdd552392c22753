// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/LinuxDesktop.h"

#include "Torvi/Linux/ActivationToken.h"
#include "Torvi/Linux/MissingPanelHint.h"
#include "Torvi/Linux/StatusNotifierItem.h"

#include <QWindow>

#include <utility>

namespace torvi {

namespace {

void bringToFront(QWindow &window)
{
    ActivationToken::use([&window] {
        window.raise();
        window.requestActivate();
    });
}

} // namespace

LinuxDesktop::LinuxDesktop(QDBusConnection connection, Say say)
    : m_connection(std::move(connection))
    , m_say(std::move(say))
    , m_views(&bringToFront)
{
}

std::unique_ptr<StatusItem> LinuxDesktop::makeStatusItem()
{
    auto item = std::make_unique<StatusNotifierItem>(m_connection);
    if (StatusNotifierRegistration *registration = item->registration()) {
        new MissingPanelHint(m_connection, registration, m_say); // ends with the item
    }
    return item;
}

GlobalEventMonitoring &LinuxDesktop::globalEvents()
{
    return m_globalEvents;
}

ActivationPolicySwitching &LinuxDesktop::activationPolicy()
{
    return m_activationPolicy;
}

ViewFactory &LinuxDesktop::views()
{
    return m_views;
}

} // namespace torvi
