// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace quillon {

/// As RFC 5952 writes it; "" unless it is 16 octets.
QString ipv6Text(const QByteArray &octets);

} // namespace quillon
