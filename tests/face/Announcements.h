// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace quillon::test {

/// `hear` gets what the program announces to assistive technology from now on, which itself learns
/// of nothing that changes any more. Needs a display with an accessibility bus: elsewhere Qt tells
/// nobody.
void listenToAnnouncements(std::function<void(const QString &)> hear);

} // namespace quillon::test
