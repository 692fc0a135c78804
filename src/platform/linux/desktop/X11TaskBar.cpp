// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/X11TaskBar.h"

#include <QGuiApplication>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>
#include <xcb/xcb.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

struct Free
{
    void operator()(void *memory) const { std::free(memory); }
};
template <typename T>
using Reply = std::unique_ptr<T, Free>;

xcb_atom_t atom(xcb_connection_t *x, const char *name)
{
    const auto cookie = xcb_intern_atom(x, 0, static_cast<uint16_t>(std::strlen(name)), name);
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

/// The window manager owns the state of a window that is shown, and changes it on request.
void askWindowManager(
    xcb_connection_t *x, xcb_window_t window, xcb_atom_t state, xcb_atom_t skip, bool skipped)
{
    constexpr uint32_t remove = 0;
    constexpr uint32_t add = 1;
    constexpr uint32_t sourceIsApplication = 1;
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = state;
    message.data.data32[0] = skipped ? add : remove;
    message.data.data32[1] = skip;
    message.data.data32[3] = sourceIsApplication;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(x)).data->root;
    xcb_send_event(x, 0, root,
        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<const char *>(&message));
}

/// The owner of a hidden window states what it is to be like once shown.
void writeProperty(
    xcb_connection_t *x, xcb_window_t window, xcb_atom_t state, xcb_atom_t skip, bool skipped)
{
    constexpr uint32_t longest = 64;
    const auto cookie = xcb_get_property(x, 0, window, state, XCB_ATOM_ATOM, 0, longest);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(x, cookie, nullptr));
    std::vector<xcb_atom_t> states;
    if (reply && reply->format == 32) {
        const auto *first = static_cast<const xcb_atom_t *>(xcb_get_property_value(reply.get()));
        states.assign(first, first + reply->value_len);
    }
    std::erase(states, skip);
    if (skipped) {
        states.push_back(skip);
    }
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, window, state, XCB_ATOM_ATOM, 32,
        static_cast<uint32_t>(states.size()), states.data());
}

} // namespace

void X11TaskBar::setSkipped(quintptr window, bool skipped)
{
    // Asked of the platform itself, not of the environment: an X server may be there and not be
    // ours.
    auto *application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (application == nullptr || QGuiApplication::platformName() != "xcb"_L1) {
        return;
    }
    xcb_connection_t *x = application->connection();
    const auto id = static_cast<xcb_window_t>(window);
    const xcb_atom_t state = atom(x, "_NET_WM_STATE");
    const xcb_atom_t skip = atom(x, "_NET_WM_STATE_SKIP_TASKBAR");
    const Reply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(x, xcb_get_window_attributes(x, id), nullptr));
    if (!attributes) {
        return;
    }
    if (attributes->map_state == XCB_MAP_STATE_UNMAPPED) {
        writeProperty(x, id, state, skip, skipped);
    } else {
        askWindowManager(x, id, state, skip, skipped);
    }
    xcb_flush(x);
}

} // namespace quillon
