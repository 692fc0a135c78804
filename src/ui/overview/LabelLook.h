// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QStyle>

namespace quillon {

/// Gives `label` one of the looks of theme.qss. It brings a font of its own.
inline void setLook(QLabel &label, const QString &look)
{
    if (label.property("look") != look) {
        label.setProperty("look", look);
        label.style()->unpolish(&label);
        label.style()->polish(&label);
    }
}

} // namespace quillon
