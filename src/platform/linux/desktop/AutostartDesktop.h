// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/LoginItem.h"

#include <QString>

namespace quillon {

/// What a desktop makes of autostart entries, by the names that it goes by (`XDG_CURRENT_DESKTOP`,
/// separated by colons) and by whether systemd has run them in this session. A name that is in no
/// list says nothing.
LoginItem::Desktop autostartDesktop(const QString &names, bool hasSystemdRunThem);

} // namespace quillon
