// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QWidget;

namespace quillon::test {

/// Which texts of a window that is shown are hard to read, a finding a line: the window is drawn,
/// and the color that differs most from the ground of a text must have a contrast of 4.5 : 1 with
/// it, of what is disabled 3 : 1. Empty when all can be read.
QStringList contrastFindings(QWidget &window);

} // namespace quillon::test
