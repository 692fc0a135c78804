// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// What a rule's network may be instead of a saved network's BSSID. Stored and compared in English.
inline const QString anyNetwork = QStringLiteral("Any Network");
inline const QString anUnknownNetwork = QStringLiteral("An Unknown Network");

} // namespace quillon
