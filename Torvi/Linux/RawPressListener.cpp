// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/RawPressListener.h"

#include <QCursor>
#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <xcb/xinput.h>

namespace torvi {

namespace {

struct Free
{
    void operator()(void *memory) const
    {
        std::free(memory); // NOLINT(cppcoreguidelines-no-malloc): xcb allocates so
    }
};

template <typename Reply>
using Owned = std::unique_ptr<Reply, Free>;

/// The major opcode of the X Input Extension, if it is there in a version with raw events.
std::optional<quint8> inputOpcode(xcb_connection_t *connection)
{
    const xcb_query_extension_reply_t *extension
        = xcb_get_extension_data(connection, &xcb_input_id);
    if (extension == nullptr || extension->present == 0) {
        return std::nullopt;
    }
    const Owned<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        connection, xcb_input_xi_query_version(connection, 2, 2), nullptr));
    if (!version || version->major_version < 2) {
        return std::nullopt;
    }
    return extension->major_opcode;
}

void selectRawPresses(xcb_connection_t *connection, xcb_window_t root)
{
    struct
    {
        xcb_input_event_mask_t header{ XCB_INPUT_DEVICE_ALL_MASTER, 1 };
        uint32_t mask = XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS;
    } selection;
    xcb_input_xi_select_events(connection, root, 1, &selection.header);
    xcb_flush(connection);
}

/// The window of `parent`'s children that the pointer is over; XCB_NONE when there is none.
xcb_window_t childUnderPointer(xcb_connection_t *connection, xcb_window_t parent)
{
    const Owned<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, parent), nullptr));
    return reply ? reply->child : xcb_window_t{ XCB_NONE };
}

bool isOwnWindow(xcb_window_t window)
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return std::ranges::any_of(windows, [window](const QWindow *own) {
        return own->handle() != nullptr && own->winId() == window;
    });
}

} // namespace

std::unique_ptr<RawPressListener> RawPressListener::create(Qt::MouseButtons mask,
                                                           GlobalEventMonitoring::Block block)
{
    int screenNumber = 0;
    Connection connection(xcb_connect(nullptr, &screenNumber));
    if (xcb_connection_has_error(connection.get()) != 0) {
        return nullptr;
    }
    const std::optional<quint8> opcode = inputOpcode(connection.get());
    if (!opcode) {
        return nullptr;
    }
    xcb_screen_iterator_t screen = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    for (; screenNumber > 0 && screen.rem > 1; --screenNumber) {
        xcb_screen_next(&screen);
    }
    const xcb_window_t root = screen.data->root;
    selectRawPresses(connection.get(), root);
    return std::unique_ptr<RawPressListener>(
        new RawPressListener(std::move(connection), root, *opcode, mask, std::move(block)));
}

RawPressListener::RawPressListener(Connection connection, xcb_window_t root, quint8 inputOpcode,
                                   Qt::MouseButtons mask, GlobalEventMonitoring::Block block)
    : m_connection(std::move(connection))
    , m_root(root)
    , m_inputOpcode(inputOpcode)
    , m_mask(mask)
    , m_block(std::move(block))
    , m_notifier(xcb_get_file_descriptor(m_connection.get()), QSocketNotifier::Read)
{
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier,
                     [this] { readEvents(); });
}

void RawPressListener::readEvents()
{
    QList<Qt::MouseButton> presses;
    while (const auto event = Owned<xcb_generic_event_t>(xcb_poll_for_event(m_connection.get()))) {
        if (const auto button = pressed(*event); button && m_mask.testFlag(*button)) {
            presses.append(*button);
        }
    }
    if (xcb_connection_has_error(m_connection.get()) != 0) {
        m_notifier.setEnabled(false); // it would stay readable for ever
        return;
    }
    if (presses.isEmpty() || isPointerOverOwnWindow()) {
        return;
    }
    const GlobalEvent event{ presses.last(), QCursor::pos() };
    const auto block = m_block; // it may drop this object
    block(event);
}

std::optional<Qt::MouseButton> RawPressListener::pressed(const xcb_generic_event_t &event) const
{
    if ((event.response_type & 0x7f) != XCB_GE_GENERIC) {
        return std::nullopt;
    }
    const auto &press = reinterpret_cast<const xcb_input_raw_button_press_event_t &>(event);
    if (press.extension != m_inputOpcode || press.event_type != XCB_INPUT_RAW_BUTTON_PRESS) {
        return std::nullopt;
    }
    switch (press.detail) {
    case 1:
        return Qt::LeftButton;
    case 2:
        return Qt::MiddleButton;
    case 3:
        return Qt::RightButton;
    default: // the wheel, and buttons at the side
        return std::nullopt;
    }
}

/// Asks the X server from the root down, since another application's window may cover ours.
bool RawPressListener::isPointerOverOwnWindow() const
{
    xcb_window_t window = childUnderPointer(m_connection.get(), m_root);
    while (window != XCB_NONE) {
        if (isOwnWindow(window)) {
            return true;
        }
        window = childUnderPointer(m_connection.get(), window);
    }
    return false;
}

} // namespace torvi
