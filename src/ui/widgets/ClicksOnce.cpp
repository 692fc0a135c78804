// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/ClicksOnce.h"

#include <QEvent>

namespace quillon {

bool ClicksOnce::eventFilter(QObject *watched, QEvent *event)
{
    // Without this press, the release that follows is of nothing.
    return event->type() == QEvent::MouseButtonDblClick || QObject::eventFilter(watched, event);
}

} // namespace quillon
