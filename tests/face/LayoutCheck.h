// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QWidget;

namespace quillon::test {

/// What a person cannot read in a window that is shown, a finding a line: texts without enough
/// room, values that were cut and that no tool tip has, what lies over its neighbor, what sticks
/// out of what it is in, what is smaller than it can be. Empty when all is well.
QStringList layoutFindings(const QWidget &window);

} // namespace quillon::test
