// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/LoginItem.h"
#include "presentation/preferences/PreferencesLine.h"

namespace quillon {

/// What is said below "Start Quillon at login": what became of the wish, as far as it can be known.
/// `isMissing` is the program that the desktop is to start.
PreferencesLine loginLine(
    bool isMissing, bool isOn, LoginItem::Entry entry, LoginItem::Desktop desktop);

} // namespace quillon
