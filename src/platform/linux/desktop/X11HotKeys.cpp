// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/X11HotKeys.h"

#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <utility>
#include <xcb/xcb.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 numLockSymbol = 0xff7f;
constexpr quint8 eventTypeBits = 0x7f;
constexpr quint16 usedModifiers =
    XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;

struct Free
{
    void operator()(void *memory) const { std::free(memory); }
};
template <typename T>
using Allocated = std::unique_ptr<T, Free>;

xcb_connection_t *connection()
{
    auto *application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return application != nullptr ? application->connection() : nullptr;
}

xcb_window_t rootWindow(xcb_connection_t *x)
{
    return xcb_setup_roots_iterator(xcb_get_setup(x)).data->root;
}

/// What the keys of the keyboard mean, by key code.
class KeyboardMap
{
public:
    explicit KeyboardMap(xcb_connection_t *x)
        : m_first(xcb_get_setup(x)->min_keycode)
        , m_count(xcb_get_setup(x)->max_keycode - m_first + 1)
        , m_reply(xcb_get_keyboard_mapping_reply(x,
              xcb_get_keyboard_mapping(
                  x, static_cast<xcb_keycode_t>(m_first), static_cast<uint8_t>(m_count)),
              nullptr))
    {
    }

    struct Place
    {
        xcb_keycode_t code = 0; ///< 0: no key has the symbol
        bool isShifted = false;
    };
    Place find(quint32 symbol) const
    {
        const int levels = m_reply ? m_reply->keysyms_per_keycode : 0;
        // A key that has the symbol without another key comes first.
        for (int level = 0; level < levels; ++level) {
            for (int key = 0; key < m_count; ++key) {
                if (xcb_get_keyboard_mapping_keysyms(m_reply.get())[key * levels + level] ==
                    symbol) {
                    return {static_cast<xcb_keycode_t>(m_first + key), level % 2 == 1};
                }
            }
        }
        return {};
    }

private:
    int m_first;
    int m_count;
    Allocated<xcb_get_keyboard_mapping_reply_t> m_reply;
};

quint16 numLockModifier(xcb_connection_t *x, const KeyboardMap &map)
{
    const xcb_keycode_t code = map.find(numLockSymbol).code;
    const Allocated<xcb_get_modifier_mapping_reply_t> reply(
        xcb_get_modifier_mapping_reply(x, xcb_get_modifier_mapping(x), nullptr));
    if (code == 0 || !reply) {
        return 0;
    }
    const xcb_keycode_t *codes = xcb_get_modifier_mapping_keycodes(reply.get());
    const int each = reply->keycodes_per_modifier;
    for (int index = 0; index < 8 * each; ++index) {
        if (codes[index] == code) {
            return static_cast<quint16>(1 << (index / each));
        }
    }
    return 0;
}

/// A grab is for exact modifiers: it is made for each state of the keys that lock.
std::array<quint16, 4> withLocks(quint16 modifiers, quint16 numLock)
{
    const quint16 capsLock = XCB_MOD_MASK_LOCK;
    return {modifiers, static_cast<quint16>(modifiers | capsLock),
        static_cast<quint16>(modifiers | numLock),
        static_cast<quint16>(modifiers | capsLock | numLock)};
}

quint16 modifiersOf(const KeyCombination &keys)
{
    int modifiers = 0;
    modifiers |= keys.shift ? XCB_MOD_MASK_SHIFT : 0;
    modifiers |= keys.control ? XCB_MOD_MASK_CONTROL : 0;
    modifiers |= keys.alt ? XCB_MOD_MASK_1 : 0;
    modifiers |= keys.meta ? XCB_MOD_MASK_4 : 0;
    return static_cast<quint16>(modifiers);
}

void ungrab(xcb_connection_t *x, quint8 keyCode, quint16 modifiers)
{
    const quint16 numLock = numLockModifier(x, KeyboardMap(x));
    for (const quint16 each : withLocks(modifiers, numLock)) {
        xcb_ungrab_key(x, keyCode, rootWindow(x), each);
    }
    xcb_flush(x);
}

} // namespace

X11HotKeys::X11HotKeys()
{
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11HotKeys::~X11HotKeys()
{
    const QStringList identifiers = m_bindings.keys();
    for (const QString &identifier : identifiers) {
        release(identifier);
    }
}

bool X11HotKeys::isOffered()
{
    // Asked of the platform itself: under Wayland an X server may be there and not be ours.
    return QGuiApplication::platformName() == "xcb"_L1 && connection() != nullptr;
}

void X11HotKeys::bind(const HotKey &hotKey, Reply reply)
{
    release(hotKey.identifier);
    const quint64 wish = ++m_lastWish;
    m_wishes[hotKey.identifier] = wish;
    Binding binding{.hotKey = hotKey, .number = wish};
    const HotKeyResult result = grab(binding);
    if (result == HotKeyResult::Bound) {
        m_bindings[hotKey.identifier] = binding;
    }
    QMetaObject::invokeMethod(
        this,
        [this, identifier = hotKey.identifier, wish, result, reply = std::move(reply)] {
            if (m_wishes.value(identifier) == wish) {
                reply(result);
            }
        },
        Qt::QueuedConnection);
}

void X11HotKeys::release(const QString &identifier)
{
    m_wishes.remove(identifier);
    const auto found = m_bindings.constFind(identifier);
    if (found == m_bindings.constEnd()) {
        return;
    }
    if (xcb_connection_t *x = connection()) {
        ungrab(x, found->keyCode, found->modifiers);
    }
    m_bindings.erase(found);
}

HotKeyResult X11HotKeys::grab(Binding &binding)
{
    xcb_connection_t *x = connection();
    const auto symbol = symbolOf(binding.hotKey.keys.key);
    if (x == nullptr) {
        return HotKeyResult::NotOffered;
    }
    const KeyboardMap map(x);
    const KeyboardMap::Place place = symbol ? map.find(symbol->number) : KeyboardMap::Place();
    if (place.code == 0) {
        return HotKeyResult::NoSuchKey;
    }
    binding.keyCode = place.code;
    binding.modifiers = modifiersOf(binding.hotKey.keys);
    if (place.isShifted) {
        binding.modifiers |= XCB_MOD_MASK_SHIFT;
    }
    // The server lets one program grab a combination twice.
    if (isOurs(binding)) {
        return HotKeyResult::Taken;
    }
    for (const quint16 modifiers : withLocks(binding.modifiers, numLockModifier(x, map))) {
        const auto cookie = xcb_grab_key_checked(x, 1, rootWindow(x), modifiers, binding.keyCode,
            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        if (const Allocated<xcb_generic_error_t> error(xcb_request_check(x, cookie)); error) {
            ungrab(x, binding.keyCode, binding.modifiers);
            return HotKeyResult::Taken;
        }
    }
    return HotKeyResult::Bound;
}

bool X11HotKeys::isOurs(const Binding &binding) const
{
    return std::any_of(m_bindings.cbegin(), m_bindings.cend(), [&](const Binding &other) {
        return other.keyCode == binding.keyCode && other.modifiers == binding.modifiers;
    });
}

bool X11HotKeys::nativeEventFilter(const QByteArray &type, void *message, qintptr *)
{
    if (type != "xcb_generic_event_t") {
        return false;
    }
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    const int kind = event->response_type & eventTypeBits;
    if (kind != XCB_KEY_PRESS && kind != XCB_KEY_RELEASE) {
        return false;
    }
    const auto *key = static_cast<const xcb_key_press_event_t *>(message);
    for (Binding &binding : m_bindings) {
        if (binding.keyCode != key->detail) {
            continue;
        }
        // The modifiers may be let go before the key.
        if (kind == XCB_KEY_RELEASE) {
            binding.isDown = false;
            binding.releasedAt = key->time;
        } else if ((key->state & usedModifiers) == binding.modifiers) {
            pressed(binding, key->time);
            return true;
        }
    }
    return false;
}

void X11HotKeys::pressed(Binding &binding, quint32 time)
{
    // A key that is held repeats: pressed again without a release, or at the time of one.
    const bool repeats = binding.isDown || (binding.releasedAt != 0 && binding.releasedAt == time);
    binding.isDown = true;
    if (!repeats) {
        QMetaObject::invokeMethod(this, binding.hotKey.pressed, Qt::QueuedConnection);
    }
}

} // namespace quillon
