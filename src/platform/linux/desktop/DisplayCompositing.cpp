// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/DisplayCompositing.h"

#include <QByteArray>
#include <QGuiApplication>

#include <cstdlib>
#include <memory>
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

/// Of the first screen: Qt draws on no other one of a display.
bool selectionIsOwned(xcb_connection_t *x)
{
    const QByteArray name = "_NET_WM_CM_S0";
    const auto asked = xcb_intern_atom(x, 0, static_cast<uint16_t>(name.size()), name.constData());
    const Reply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(x, asked, nullptr));
    if (!atom) {
        return false;
    }
    const Reply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(x, xcb_get_selection_owner(x, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace

bool DisplayCompositing::isActive() const
{
    if (QGuiApplication::platformName() == "wayland"_L1) {
        return true;
    }
    auto *application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return application != nullptr && QGuiApplication::platformName() == "xcb"_L1 &&
           selectionIsOwned(application->connection());
}

} // namespace quillon
