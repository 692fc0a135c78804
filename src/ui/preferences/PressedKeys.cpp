// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/PressedKeys.h"

#include <QKeyEvent>
#include <QKeySequence>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// The modifier that a key is; none for other keys.
Qt::KeyboardModifier modifierOf(int key)
{
    switch (key) {
    case Qt::Key_Control:
        return Qt::ControlModifier;
    case Qt::Key_Alt:
        return Qt::AltModifier;
    case Qt::Key_Shift:
        return Qt::ShiftModifier;
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
        return Qt::MetaModifier;
    default:
        return Qt::NoModifier;
    }
}

bool isNoKey(int key)
{
    switch (key) {
    case 0:
    case Qt::Key_unknown:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_Multi_key:
        return true;
    default:
        return modifierOf(key) != Qt::NoModifier;
    }
}

QString nameOf(const QKeyEvent &event)
{
    if (event.modifiers().testFlag(Qt::KeypadModifier)) {
        // Another key of the same name is what a hot key would listen to.
        return u"Keypad"_s;
    }
    // Tab with Shift is a key of its own.
    const int key = event.key() == Qt::Key_Backtab ? int(Qt::Key_Tab) : event.key();
    return QKeySequence(key).toString(QKeySequence::PortableText);
}

} // namespace

KeyCombination pressedKeys(const QKeyEvent &event)
{
    const bool isPress = event.type() != QEvent::KeyRelease;
    Qt::KeyboardModifiers held = event.modifiers();
    // Systems differ in whether a modifier that is pressed or released counts at that moment.
    held.setFlag(modifierOf(event.key()), isPress && modifierOf(event.key()) != Qt::NoModifier);
    if (modifierOf(event.key()) == Qt::NoModifier) {
        held = event.modifiers();
    }
    return {.control = held.testFlag(Qt::ControlModifier),
        .alt = held.testFlag(Qt::AltModifier),
        .shift = held.testFlag(Qt::ShiftModifier),
        .meta = held.testFlag(Qt::MetaModifier),
        .key = isPress && !isNoKey(event.key()) ? nameOf(event) : QString()};
}

} // namespace quillon
