// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/HeldKeys.h"

#include <QAbstractButton>
#include <QKeyEvent>

namespace quillon {

namespace {

bool presses(int key, const QObject &target)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return target.isWidgetType();
    case Qt::Key_Space:
    case Qt::Key_Select:
        return qobject_cast<const QAbstractButton *>(&target) != nullptr;
    default:
        return false;
    }
}

} // namespace

bool HeldKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *const key = static_cast<QKeyEvent *>(event);
        return key->isAutoRepeat() && presses(key->key(), *watched);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quillon
