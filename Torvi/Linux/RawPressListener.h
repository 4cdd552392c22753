// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/GlobalEventMonitoring.h"

#include <QSocketNotifier>

#include <memory>
#include <optional>
#include <xcb/xcb.h>

namespace torvi {

/// Listens to the presses of mouse buttons on an X server, wherever they go; the other application
/// still receives them.
///
/// It has a connection to the X server of its own, so that dropping it leaves nothing behind.
/// Main thread only.
class RawPressListener final : public GlobalEventMonitoring::Token
{
public:
    /// Null when there is no X server, or none with the X Input Extension 2.2.
    [[nodiscard]] static std::unique_ptr<RawPressListener>
    create(Qt::MouseButtons mask, GlobalEventMonitoring::Block block);

private:
    struct Disconnect
    {
        void operator()(xcb_connection_t *connection) const
        {
            xcb_disconnect(connection);
        }
    };
    using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

    RawPressListener(Connection connection, xcb_window_t root, quint8 inputOpcode,
                     Qt::MouseButtons mask, GlobalEventMonitoring::Block block);

    void readEvents();
    [[nodiscard]] std::optional<Qt::MouseButton> pressed(const xcb_generic_event_t &event) const;
    [[nodiscard]] bool isPointerOverOwnWindow() const;

    Connection m_connection;
    xcb_window_t m_root;
    quint8 m_inputOpcode;
    Qt::MouseButtons m_mask;
    GlobalEventMonitoring::Block m_block;
    QSocketNotifier m_notifier;
};

} // namespace torvi
