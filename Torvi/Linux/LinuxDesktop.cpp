// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/LinuxDesktop.h"

#include "Torvi/Linux/ActivationToken.h"
#include "Torvi/Linux/MissingPanelHint.h"
#include "Torvi/Linux/StatusNotifierItem.h"

#include <QGuiApplication>
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

void followColorScheme(const ColorScheme &scheme, QWindow &window,
                       const std::function<void(bool)> &setDark)
{
    const auto follow = [&scheme, setDark] { setDark(scheme.isDark()); };
    QObject::connect(&scheme, &ColorScheme::changed, &window, follow);
    follow();
}

/// From the event loop: it may not be running yet.
void endWithFailure()
{
    QMetaObject::invokeMethod(
        qGuiApp, [] { QCoreApplication::exit(1); }, Qt::QueuedConnection);
}

} // namespace

LinuxDesktop::LinuxDesktop(QDBusConnection connection, Say say)
    : m_connection(std::move(connection))
    , m_say(std::move(say))
    , m_colorScheme(m_connection)
    , m_views(LoadedViews::module(QCoreApplication::applicationDirPath()),
              { m_clipboard, &bringToFront,
                [this](QWindow &window, const std::function<void(bool)> &setDark) {
                    followColorScheme(m_colorScheme, window, setDark);
                } },
              [this](const QString &message) {
                  m_say(message);
                  endWithFailure();
              })
{
}

Clipboard &LinuxDesktop::clipboard()
{
    return m_clipboard;
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
