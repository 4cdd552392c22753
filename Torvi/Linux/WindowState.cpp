// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/WindowState.h"

#include <QGuiApplication>
#include <QWindow>

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <xcb/xcb.h>

namespace torvi {

namespace {

xcb_connection_t *connection()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 == nullptr ? nullptr : x11->connection();
}

xcb_atom_t atom(xcb_connection_t *connection, const char *name)
{
    const auto cookie
        = xcb_intern_atom(connection, 0, static_cast<uint16_t>(std::strlen(name)), name);
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : xcb_atom_t{ XCB_ATOM_NONE };
}

struct Atoms
{
    explicit Atoms(xcb_connection_t *connection)
        : state(atom(connection, "_NET_WM_STATE"))
        , skip{ atom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                atom(connection, "_NET_WM_STATE_SKIP_PAGER") }
    {
    }

    xcb_atom_t state;
    std::array<xcb_atom_t, 2> skip;
};

xcb_window_t rootWindow(xcb_connection_t *connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

} // namespace

void WindowState::startInTaskList(const QWindow &window, bool isListed)
{
    xcb_connection_t *x11 = connection();
    if (x11 == nullptr || isListed) {
        return; // listed is what a window starts as
    }
    const Atoms atoms(x11);
    xcb_change_property(x11, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()),
                        atoms.state, XCB_ATOM_ATOM, 32, static_cast<uint32_t>(atoms.skip.size()),
                        atoms.skip.data());
}

void WindowState::changeInTaskList(const QWindow &window, bool isListed)
{
    xcb_connection_t *x11 = connection();
    if (x11 == nullptr) {
        return;
    }
    const Atoms atoms(x11);
    const uint32_t remove = 0;
    const uint32_t add = 1;
    const uint32_t fromApplication = 1;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window.winId());
    message.type = atoms.state;
    message.data.data32[0] = isListed ? remove : add;
    message.data.data32[1] = atoms.skip[0];
    message.data.data32[2] = atoms.skip[1];
    message.data.data32[3] = fromApplication;
    xcb_send_event(x11, 0, rootWindow(x11),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(x11);
}

} // namespace torvi
