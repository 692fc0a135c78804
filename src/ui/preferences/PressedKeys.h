// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/KeyCombination.h"

class QKeyEvent;

namespace quillon {

/// What is held after a key was pressed or released, as settings name it: without a key while only
/// modifiers are held, and after a release.
KeyCombination pressedKeys(const QKeyEvent &event);

} // namespace quillon
